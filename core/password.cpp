#include "core/password.h"

#include <sodium.h>

#include <array>
#include <stdexcept>

#include "core/database.h"

namespace trv5 {

std::string programPassword() {
  std::string password;
  for (const char* piece : {"Nerovia", "-", "90", "/", "Forge", "-", "11", "/", "colpo"}) password += piece;
  return password;
}

// The password is no secret worth guessing: it stands in the program. The lowest cost keeps opening a file quick.
std::string passwordHash(std::string_view password) {
  std::array<char, crypto_pwhash_STRBYTES> hash{};
  if (sodium_init() < 0 || crypto_pwhash_str(hash.data(), password.data(), password.size(), crypto_pwhash_OPSLIMIT_MIN,
                                             crypto_pwhash_MEMLIMIT_MIN) != 0)
    throw std::runtime_error("the password can't be hashed");
  return hash.data();
}

bool passwordMatches(const std::string& hash, std::string_view password) {
  // A hash of another cost isn't ours, and a hostile one could take all memory.
  if (hash.size() >= crypto_pwhash_STRBYTES || sodium_init() < 0 ||
      crypto_pwhash_str_needs_rehash(hash.c_str(), crypto_pwhash_OPSLIMIT_MIN, crypto_pwhash_MEMLIMIT_MIN) != 0)
    return false;
  return crypto_pwhash_str_verify(hash.c_str(), password.data(), password.size()) == 0;
}

}  // namespace trv5
