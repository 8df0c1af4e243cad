#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/grid.h"
#include "core/operation_depth.h"

namespace trv5 {

class Button;
class Form;

enum class Icon { None, Information, Exclamation, Critical, Question };

/// A message or question box. Where nothing else is told the title is "Avviso" and the icon an exclamation mark.
struct Box {
  std::string text;
  std::string title = "Avviso";
  Icon icon = Icon::Exclamation;
  std::string reason = {};  ///< below the text in a quieter line, where a fixed text leaves open what went wrong
};

/// A box that asks for a line of text.
struct InputBox {
  std::string text;
  std::string title;
  std::string initial = {};      ///< what stands in the field at first
  std::string placeholder = {};  ///< the expected form, shown while the field is empty
};

/// A box that asks for a file.
struct FileBox {
  std::string title;
  std::filesystem::path folder;
  std::string filter = {};            ///< a pattern such as "*.mdb"
  std::string defaultExtension = {};  ///< added to a name typed without one, no dot
  std::string name = {};              ///< of a file to save: the one offered, without a folder
};

/// How a grid is printed. Margins in twentieths of a point, the grids' own unit.
struct PrintSetup {
  std::string title = {};
  std::vector<std::string> header = {};  ///< lines above the table on each page: what it shows, how it came to be
  bool landscape = true;
  int horizontalMargin = 450;
  int verticalMargin = 450;
};

/// A moment of local time.
struct DateTime {
  int year = 1, month = 1, day = 1, hour = 0, minute = 0, second = 0;
  bool operator==(const DateTime&) const = default;
};

/// "HH:MM:SS", as the log lists show it.
std::string timeText(const DateTime& moment);

/// Everything that an operation asks of the outside. The desktop has one implementation, the console another, tests a
/// third; no operation shows a box, reads a clock or touches the clipboard in another way.
class Shell {
 public:
  virtual ~Shell() = default;

  virtual void message(const Box& box) = 0;
  /// True when the user chose Yes.
  virtual bool confirm(const Box& box) = 0;
  /// The text entered, nothing when cancelled.
  virtual std::optional<std::string> input(const InputBox& box) = 0;
  /// The file chosen, nothing when cancelled.
  virtual std::optional<std::filesystem::path> chooseOpen(const FileBox& box) = 0;
  virtual std::optional<std::filesystem::path> chooseSave(const FileBox& box) = 0;
  /// Prints with a preview; the heading row on each page.
  virtual void print(const Grid& grid, const PrintSetup& setup) = 0;

  virtual std::string clipboard() = 0;
  virtual void setClipboard(const std::string& text) = 0;

  /// Opens the screen on first use, brings it to the front, and gives its controls. Throws UserError for a screen that
  /// the program doesn't have.
  virtual Form& show(std::string_view screen) = 0;
  virtual void close(std::string_view screen) = 0;
  /// The help page of a context number.
  virtual void help(int context) = 0;
  virtual void openAddress(const std::string& url) = 0;
  /// The bar of the shell: 0..maximum.
  virtual void progress(int value, int maximum) = 0;
  /// One line about what the last operation did.
  virtual void status(const std::string& text) = 0;
  /// Offers a button of a screen beside that line, until the next line or operation; null for none.
  virtual void offer(const Button* button) = 0;
  /// The pointer as an hourglass, or as ever; see Hourglass.
  virtual void hourglass(bool shown) = 0;
  /// Runs `step` again and again, between what the user does and never inside an operation, until it says false. A step
  /// doesn't wait for anything and throws nothing. Where no user is, the steps run before this comes back.
  virtual void inSteps(std::function<bool()> step) = 0;
  virtual DateTime now() = 0;
  /// Ends the program.
  virtual void quit() = 0;

  /// The operations at work on the forms of this program.
  OperationDepth& operations() { return m_operations; }

 private:
  OperationDepth m_operations;
};

/// The pointer is an hourglass as long as this lives.
class Hourglass {
 public:
  explicit Hourglass(Shell& shell) : m_shell(shell) { m_shell.hourglass(true); }
  ~Hourglass() { m_shell.hourglass(false); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  Shell& m_shell;
};

}  // namespace trv5
