#pragma once

#include <stdexcept>
#include <string>

namespace trv5 {

/// What went wrong in the world outside (disk, database, a file's contents), in Italian, ready to be shown: what was
/// tried, on which file, and the reason. The one handler around operations shows it in a box.
class UserError : public std::runtime_error {
 public:
  explicit UserError(const std::string& text, std::string title = "Avviso", std::string details = {})
      : std::runtime_error(text), m_title(std::move(title)), m_details(std::move(details)) {}
  const std::string& title() const { return m_title; }
  /// What a library or the system said, in its own language, for the quiet line of a box (Box::reason); often empty.
  const std::string& details() const { return m_details; }

 private:
  std::string m_title, m_details;
};

}  // namespace trv5
