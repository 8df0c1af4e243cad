#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>

#include "core/palette.h"

class QApplication;

namespace trv5 {

/// The colours of everything around the grids; each pair of text and ground stands out by 4.5:1 at least.
struct ChromeColours {
  Rgb window;       ///< behind the panels, bars
  Rgb panel;        ///< panels, tab pages
  Rgb field;        ///< lists, text boxes
  Rgb button;       ///< secondary buttons
  Rgb voidArea;     ///< the part of a grid below its last row; empty work area
  Rgb rail;         ///< the shell's panel
  Rgb line;         ///< panel borders, separators
  Rgb edge;         ///< borders of controls and grids
  Rgb text;         ///< what is read first
  Rgb text2;        ///< labels, hints, messages in grids
  Rgb disabled;     ///< disabled text only
  Rgb accent;       ///< primary button, current tab, focus ring, current screen, progress
  Rgb onAccent;     ///< text on accent
  Rgb heading;      ///< headings of grids
  Rgb headingText;  ///< text of headings
  Rgb danger;       ///< text of deleting buttons only
};

/// The accent is never one of the data colours (green, cyan, yellow, orange, pink, lilac): those mean something.
inline constexpr ChromeColours kLightColours = {.window = 0xE8EBEE,
                                                .panel = 0xF5F6F8,
                                                .field = 0xFFFFFF,
                                                .button = 0xFFFFFF,
                                                .voidArea = 0xDDE1E6,
                                                .rail = 0xDCE1E6,
                                                .line = 0xC6CCD3,
                                                .edge = 0x7F8A95,
                                                .text = 0x1D232A,
                                                .text2 = 0x4C5763,
                                                .disabled = 0x8A939D,
                                                .accent = 0x2B506E,
                                                .onAccent = 0xFFFFFF,
                                                .heading = 0xE3E7EB,
                                                .headingText = 0x2B333B,
                                                .danger = 0x9B1C1C};
inline constexpr ChromeColours kDarkColours = {.window = 0x22272C,
                                               .panel = 0x2B3137,
                                               .field = 0x1C2024,
                                               .button = 0x363D44,
                                               .voidArea = 0x353C43,
                                               .rail = 0x1D2226,
                                               .line = 0x464E57,
                                               .edge = 0x7D8894,
                                               .text = 0xE7EAED,
                                               .text2 = 0xB3BCC5,
                                               .disabled = 0x7D8791,
                                               .accent = 0x9CC3E0,
                                               .onAccent = 0x12202B,
                                               .heading = 0x3B434B,
                                               .headingText = 0xE1E6EA,
                                               .danger = 0xF0A3A3};

inline QColor toColor(Rgb colour) {
  return QColor::fromRgb(static_cast<QRgb>(colour | 0xFF000000U));
}
inline QString qs(const std::string& text) {
  return QString::fromStdString(text);
}

/// Gives the program its looks: Fusion, the palette, the type scale and one style sheet. Made once, in main, after the
/// application, which it belongs to, and before the first widget; it goes after the last widget and before the
/// application. Widgets ask it for colours and sizes and follow `changed`; windows wear its style sheet.
class Theme : public QObject {
  Q_OBJECT
 public:
  enum class Density { Comfortable, Compact };
  enum class Scheme { System, Light, Dark };

  explicit Theme(QApplication& app);
  ~Theme() override;
  /// The one of the running application.
  static const Theme& current();
  static Theme& edit();

  const ChromeColours& colours() const { return m_dark ? kDarkColours : kLightColours; }
  bool dark() const { return m_dark; }
  Density density() const { return m_density; }
  void setDark(bool dark);
  /// Light or dark by the user's choice, or as the desktop was at the start.
  void setScheme(Scheme scheme);
  Scheme scheme() const { return m_scheme; }
  /// Windows under 900 pixels of height are laid out compactly.
  void setWindowHeight(int height);
  /// Size of the base font in points, 9.5 to 16; 0 for the size that the density tells.
  void setBasePoints(double points);
  /// What the user chose, 0 where nothing.
  double chosenPoints() const { return m_points; }
  double basePoints() const;
  double smallPoints() const;
  double largePoints() const { return basePoints() * 1.35; }
  double figurePoints() const { return basePoints() * 1.125; }  ///< of numbers that one types one after the other
  void stepBase(double points) { setBasePoints(basePoints() + points); }

  const QFont& base() const { return m_base; }
  const QFont& small(bool strong = false) const { return strong ? m_smallStrong : m_small; }
  const QFont& title() const { return m_title; }
  const QFont& large() const { return m_large; }

  int row() const;      ///< height of a grid's row
  int heading() const;  ///< height of a grid's heading
  int control() const;  ///< height of buttons, lists and text boxes
  int low() const;      ///< height of boxes that stand one below the other in great number
  int unit() const;     ///< gap between controls and between panels
  int panelPadding() const { return unit() + 2; }

  /// The style sheet for these colours and sizes.
  QString styleSheet() const;
  /// Gives the style sheet to a window and all that is put into it, also after each change. It is the windows' and not
  /// the application's: of the latter a widget is polished anew with each of the parents that it gets while its screen
  /// is built.
  void dressWindow(QWidget& window);

 Q_SIGNALS:
  /// Colours or sizes are still the former ones.
  void aboutToChange();
  /// Colours or sizes are others.
  void changed();

 private:
  static Theme* of(const QApplication& app);
  void measure();
  void apply();

  QApplication& m_app;
  bool m_desktopDark = false, m_dark = false;
  Scheme m_scheme = Scheme::System;
  Density m_density = Density::Comfortable;
  double m_points = 0;
  QFont m_base, m_small, m_smallStrong, m_title, m_large;
  int m_line = 0, m_smallLine = 0;  // heights of their lines
  QList<QPointer<QWidget>> m_windows;
};

/// Runs `set` now and after each change of the theme, as long as `owner` lives: for sizes that come from the font.
void withTheme(QObject& owner, const std::function<void()>& set);

}  // namespace trv5
