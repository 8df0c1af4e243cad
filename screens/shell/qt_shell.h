#pragma once

#include <QObject>
#include <QPointer>
#include <QSettings>
#include <QStringList>
#include <memory>
#include <string>
#include <vector>

#include "core/program.h"
#include "core/shell.h"
#include "screens/shell/registry.h"

namespace trv5 {

class ContainerScreen;
class HelpViewer;

/// The user's side of the program on Qt: opens the screens as windows and keeps them, shows boxes, prints, copies. The
/// console derives its own from it, which answers the boxes by itself.
class QtShell : public QObject, public Shell {
  Q_OBJECT
 public:
  explicit QtShell(std::vector<ScreenEntry> screens = allScreens());
  ~QtShell() override;

  /// The run whose screens these are. Must be given before the first show, and outlive the shell's screens.
  void attach(Program& program);
  /// From here on places and sizes of windows are kept in this file from one run to the next.
  void useSettings(const std::filesystem::path& file);

  bool hasScreen(std::string_view name) const { return entryOf(name) != nullptr; }
  /// The open screens, the front one last.
  std::vector<std::string> openScreens() const;
  /// Null when it isn't open.
  Form* form(std::string_view screen) const;
  QWidget* widget(std::string_view screen) const;
  /// The widget of a control of that screen; null when it has none. Screens that stand inside the shell's window have
  /// controls of the same names: those aren't meant.
  QWidget* widget(std::string_view screen, std::string_view control) const;
  /// The window of the help; null as long as none was asked for.
  HelpViewer* helpViewer() const { return m_help.get(); }
  /// Destroys the screens that were closed; not while an operation runs, which may still stand in one of them.
  void purge();
  void closeAll();
  /// The page of the screen in front.
  void helpOfFront();
  void showNext();

  void message(const Box& box) override;
  bool confirm(const Box& box) override;
  std::optional<std::string> input(const InputBox& box) override;
  std::optional<std::filesystem::path> chooseOpen(const FileBox& box) override;
  std::optional<std::filesystem::path> chooseSave(const FileBox& box) override;
  void print(const Grid& grid, const PrintSetup& setup) override;
  std::string clipboard() override;
  void setClipboard(const std::string& text) override;
  Form& show(std::string_view screen) override;
  void close(std::string_view screen) override;
  void help(int context) override;
  void openAddress(const std::string& url) override;
  void progress(int value, int maximum) override;
  void status(const std::string& text) override;
  void offer(const Button* button) override;
  void hourglass(bool shown) override;
  void inSteps(std::function<bool()> step) override;
  DateTime now() override;
  void quit() override;

 protected:
  /// The window that a box belongs to, so that it can't open behind it.
  QWidget* front() const;
  /// The setup with the header that the screen of that grid tells, where the operation told none.
  PrintSetup withHeader(const Grid& grid, PrintSetup setup) const;

 private:
  struct Open {
    const ScreenEntry* entry = nullptr;
    std::unique_ptr<Form> form;
    QPointer<QWidget> widget;
    ~Open();
  };

  const ScreenEntry* entryOf(std::string_view name) const;
  Open* find(std::string_view screen) const;
  ContainerScreen* shellWindow() const;
  Open& open(const ScreenEntry& entry);
  void place(Open& opened);
  void toFront(std::string_view screen);
  void tellShellWindow();
  QStringList work() const;
  HelpViewer& helpWindow();
  void emptyProgress();
  void keepPictures();
  void drawAgain();

  std::vector<ScreenEntry> m_screens;
  Program* m_program = nullptr;
  std::vector<std::unique_ptr<Open>> m_open;    // the front one last
  std::vector<std::unique_ptr<Open>> m_closed;  // waiting for the end of the operation that closed them
  std::unique_ptr<QSettings> m_settings;
  std::unique_ptr<HelpViewer> m_help;
  std::shared_ptr<void> m_afterOperations;  // the title tells what is at work, and what stood still is drawn
  bool m_purgeAsked = false, m_opening = false, m_emptyAsked = false;
  bool m_keepsPictures = false;
};

}  // namespace trv5
