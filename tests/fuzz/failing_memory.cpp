#include "fuzz/failing_memory.h"

#include <sqlite3.h>

#include <cstdlib>
#include <new>
#include <stdexcept>

namespace trv5 {
namespace {

long asked = 0, failAt = 0;
bool armed = false;

bool refuses() {
  return armed && ++asked == failAt;
}

sqlite3_mem_methods libraryMemory;

void* libraryMalloc(int bytes) {
  return refuses() ? nullptr : libraryMemory.xMalloc(bytes);
}

void* libraryRealloc(void* memory, int bytes) {
  return refuses() ? nullptr : libraryMemory.xRealloc(memory, bytes);
}

// Before the library's first use.
const bool kReplaced = [] {
  if (sqlite3_config(SQLITE_CONFIG_GETMALLOC, &libraryMemory) != SQLITE_OK) return false;
  sqlite3_mem_methods own = libraryMemory;
  own.xMalloc = libraryMalloc;
  own.xRealloc = libraryRealloc;
  return sqlite3_config(SQLITE_CONFIG_MALLOC, &own) == SQLITE_OK;
}();

}  // namespace

FailingMemory::FailingMemory(long n) {
  if (!kReplaced) throw std::logic_error("the database library keeps its own memory");
  asked = 0;
  failAt = n;
  armed = true;
}

FailingMemory::~FailingMemory() {
  armed = false;
}

bool FailingMemory::failed() const {
  return asked >= failAt;
}

long FailingMemory::requests() const {
  return asked;
}

}  // namespace trv5

// All forms that the program uses: a sanitizer has its own of each, and minds their being mixed.
void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept {
  return trv5::refuses() ? nullptr : std::malloc(bytes == 0 ? 1 : bytes);
}

void* operator new(std::size_t bytes) {
  if (void* const memory = operator new(bytes, std::nothrow)) return memory;
  throw std::bad_alloc();
}

void* operator new[](std::size_t bytes) {
  return operator new(bytes);
}

void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept {
  return operator new(bytes, std::nothrow);
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}

void operator delete[](void* memory) noexcept {
  std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}

void operator delete[](void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}
