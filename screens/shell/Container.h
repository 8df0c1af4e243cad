#pragma once

#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <vector>

#include "core/container.h"
#include "screens/kit/screen.h"
#include "screens/shell/registry.h"

class QAction;
class QBoxLayout;
class QFrame;
class QLabel;
class QPushButton;
class QMdiArea;
class QMdiSubWindow;
class QScrollArea;

namespace trv5 {

class GridView;
class RailButton;

/// The shell: the panel at the left, the area where the other screens open, the status bar.
class ContainerScreen : public QMainWindow {
  Q_OBJECT
 public:
  explicit ContainerScreen(Container& form);
  ~ContainerScreen() override;

  /// Puts a new screen into the area.
  void place(QWidget& screen, const ScreenEntry& entry);
  /// Brings a placed screen to the front.
  void bringToFront(QWidget& screen);
  /// Takes a screen out of sight; it lives on in its frame, and goes with it.
  void takeAway(QWidget& screen);
  /// The open screens, the front one last.
  void setOpenScreens(std::vector<std::string> names);
  void showStatus(const QString& text);
  /// A quiet button beside the status text, until the next text or offer; an empty caption takes it away.
  void showOffer(const QString& caption, const QString& toolTip, std::function<void()> taken);
  /// Tells what is at work, the archive and the method; the desktop's title of the window names it.
  void setWork(std::function<QStringList()> work);
  /// Asks for it again.
  void showTitle();

  /// False when no place is remembered yet.
  bool restore(const QSettings& settings);
  void store(QSettings& settings) const;

  bool railWide() const { return m_wide; }
  void toggleRail();

 Q_SIGNALS:
  /// The user closed, or clicked into, the screen of that name.
  void closedByUser(const QString& screen);
  void activatedByUser(const QString& screen);
  void nextScreenWanted();
  void helpWanted();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void buildRail();
  QWidget* schemeButton();
  void buildStatusBlock(QBoxLayout& into);
  void addScreenButtons(QBoxLayout& layout);
  void addDrawList(QBoxLayout& layout);
  void addBottomButtons(QBoxLayout& layout);
  QPushButton* verifyButton();
  void followLastDraw(QLabel& lastDate, QLabel& lastIndex);
  void buildArea();
  void buildStatusBar();
  void buildKeys();
  void layoutParts();
  int railWidth() const;
  void fitChip();
  void noteFittedWindows();
  void fitSmallWindows();
  void refit(QMdiSubWindow& window);
  void keepInSight(int widthBefore);
  void setWide(bool wide);
  void foldRail();
  void fitDesktop();
  QSize naturalSize(const QMdiSubWindow& window) const;
  QMdiSubWindow* windowOf(const QWidget& screen) const;

  struct ScreenButton {
    RailButton* button;
    std::string screen;
  };

  Container& m_form;
  Kit m_kit;
  QWidget* m_centre;
  QWidget* m_rail;
  QMdiArea* m_area;
  QWidget* m_empty;
  RailButton* m_menu = nullptr;
  std::vector<ScreenButton> m_buttons;
  std::vector<std::string> m_open;
  std::vector<RailButton*> m_otherButtons;
  QBoxLayout* m_bottom = nullptr;
  QWidget* m_wideOnly = nullptr;  // status block and list of draws
  QWidget* m_filler = nullptr;
  GridView* m_draws = nullptr;
  QLabel *m_status = nullptr, *m_lastDate = nullptr, *m_lastIndex = nullptr;
  QLabel* m_count = nullptr;
  QPushButton* m_offer = nullptr;
  std::function<void()> m_offerTaken;
  QAction* m_resetBase = nullptr;
  bool m_wide = true, m_anyOpen = false;
  // What the user chose last while no screen is open, and while one is.
  bool m_wideEmpty = true, m_wideOpen = false;
  bool m_shownOnce = false;
  bool m_toFit = false;  // the window is no longer maximised
  std::function<QStringList()> m_work;
  QPointer<QWidget> m_focusBefore;  // the panel was opened by a key or its button
};

}  // namespace trv5
