#pragma once

// A layout puts the widgets that the kit makes side by side: it needs to know them all.
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QString>
#include <QTabWidget>
#include <QToolButton>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "core/controls.h"
#include "screens/kit/click_label.h"
#include "screens/kit/grid_view.h"
#include "screens/kit/layouts.h"
#include "screens/kit/state_mark.h"

namespace trv5 {

// The building blocks of all screens. A screen is laid out like this:
//
//   Kit kit(form);
//   auto* panel = new Panel(QStringLiteral("Ricerca"));
//   panel->body()->addLayout(row({Kit::captioned(QStringLiteral("&Ruota"), kit.combo("ComboR1")),
//                                 Piece::gap(), kit.check("Ch_ultima", 'F')}));
//   panel->body()->addWidget(kit.grid("FgEv", {.samples = {"88", "8888", "88/88/8888"}}), 1);
//   panel->body()->addLayout(flow({kit.button("Command44", {.kind = ButtonKind::Primary, .icon = "play", .mnemonic =
//   'R'})}));
//
// Every widget is found by the control's name in the form, bound to it (value, colours, tooltip, enabling, operation)
// and given that name; a name that the form lacks throws std::logic_error. Sizes and gaps come from the theme: no pixel
// constants, no setSpacing, no style sheets in a screen. Layouts of `row`, `column`, `flow` have no margins, panels
// have the padding.

/// The four kinds of buttons. At most one primary a panel.
enum class ButtonKind { Primary, Secondary, Quiet, Danger };

struct ButtonLook {
  ButtonKind kind = ButtonKind::Secondary;
  const char* icon = nullptr;  ///< name of an icon (screens/icons), beside the caption
  char mnemonic = 0;           ///< letter of the caption that is underlined; unique within the screen
  bool iconOnly = false;       ///< no caption: it becomes the accessible name
  bool strong = false;         ///< caption in weight 600
  bool tall = false;           ///< higher than the others: what starts or ends the program
};

/// How a label is written.
enum class Type { Base, Small, Hint, Title, Large, Lead };

class Kit {
 public:
  explicit Kit(Form& form) : m_form(form) {}
  Form& form() const { return m_form; }

  QPushButton* button(std::string_view name, ButtonLook look = {});
  /// Buttons joined without a gap: `[1N 1R|1R|2R|3R]`. With `firstStrong` the first is written in weight 600.
  QWidget* joined(std::initializer_list<std::string_view> names, bool firstStrong = true);
  /// The same with a button and the list that it reads: `[TUTTE|Rarità]`.
  /// `called`: the list as it is read out.
  QWidget* joinedList(std::string_view button, std::string_view list, const QString& widest, const QString& called);
  /// A label with an operation, as a key of its own (`LblPN`).
  QToolButton* key(std::string_view name);
  QLabel* label(std::string_view name, Type type = Type::Base);
  /// "non aggiornato" where a result no longer fits what it was made from; the control is named by its grid.
  StateMark* stateMark(std::string_view grid);
  /// A label as a small note that takes the room there is.
  SmallNote* note(std::string_view name, Qt::TextElideMode gives, Qt::Alignment at = Qt::AlignLeft);
  /// A label with an operation, shown as text.
  ClickLabel* clickLabel(std::string_view name, Type type = Type::Base, char mnemonic = 0);
  /// The same with a square of colour before the text.
  ClickLabel* swatch(std::string_view name, Rgb colour, bool captionShown = true);
  /// A label shown as a field, giving up its middle where it is too long.
  ElidedLabel* path(std::string_view name);
  /// `widest`: the widest text to keep room for; empty: that of the items at the moment.
  QComboBox* combo(std::string_view name, const QString& widest = {});
  QCheckBox* check(std::string_view name, char mnemonic = 0);
  QRadioButton* option(std::string_view name, char mnemonic = 0);
  /// `widest`: the text to keep room for; empty: takes the free width.
  QLineEdit* edit(std::string_view name, const QString& widest = {}, bool clearButton = false);
  QScrollBar* scroll(std::string_view name);
  /// A tab widget in document mode; `pages` in the order in which the control tells its tabs.
  QTabWidget* tabs(std::string_view name, const std::vector<QWidget*>& pages);
  /// A log of `lines` visible lines.
  QListWidget* lines(std::string_view name, int lines, const QString& widest = {});
  QProgressBar* progress(std::string_view name);
  QCalendarWidget* calendar(std::string_view name);
  GridView* grid(std::string_view name, GridLook look = {});

  /// A fixed text; "&Ruota" with its buddy gives the focus to it.
  static QLabel* text(const QString& text, Type type = Type::Base, QWidget* buddy = nullptr);
  /// The text and its widget side by side, the text in the quiet colour of labels.
  static QWidget* captioned(const QString& text, QWidget* widget);

 private:
  template <class Control_>
  Control_& control(std::string_view name) const {
    return m_form.get<Control_>(name);
  }
  Form& m_form;
};

/// Gives a button its kind, icon and flags; for buttons that belong to no form, such as those of dialogs.
void dress(QAbstractButton& button, const ButtonLook& look);

}  // namespace trv5
