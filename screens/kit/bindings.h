#pragma once

#include <QChar>

#include "core/controls.h"

class QAbstractButton;
class QCalendarWidget;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QScrollBar;
class QTabBar;
class QTabWidget;
class QWidget;

namespace trv5 {

class ClickLabel;

// Ties a widget to a control of a form. The widget takes the control's name as objectName, follows its value, colours,
// tooltip and enabling, and hands what the user does to the control, whose operation then runs: changes of the value,
// the focus that comes and goes, keys, double clicks. A control that an operation gives the focus takes it to its
// widget. No rule lives here. One widget shows one control; the form outlives its widgets.
//
// `mnemonic` is the letter of the caption that is underlined: mnemonics belong to the layout.

void bind(QAbstractButton& widget, Button& control, QChar mnemonic = {});
/// A label with an operation, shown as a button or key.
void bind(QAbstractButton& widget, Label& control);
void bind(QAbstractButton& widget, Check& control, QChar mnemonic = {});
void bind(QLabel& widget, Label& control);
/// The mnemonic takes a label to its buddy.
void bind(ClickLabel& widget, Label& control, QChar mnemonic = {});
/// A label shown as a field that can be selected and copied but not written.
void bind(QLineEdit& widget, Label& control);
void bind(QComboBox& widget, Combo& control);
void bind(QLineEdit& widget, Text& control);
void bind(QScrollBar& widget, Scroll& control);
/// Makes the tabs, in the order in which the control tells them; a tab's given index is its tabData.
void bind(QTabBar& widget, Tabs& control);
/// The pages must have been added in the order in which the control tells its tabs.
void bind(QTabWidget& widget, Tabs& control);
void bind(QListWidget& widget, LineList& control);
void bind(QProgressBar& widget, Progress& control);
void bind(QCalendarWidget& widget, Calendar& control);

/// What all of these do: `show` runs now and after each change of the control, for widgets of another kind.
void follow(QWidget& widget, Control& control, const std::function<void()>& show);

/// `caption` with its first `mnemonic` (either case, the same case first) marked for Qt.
QString withMnemonic(const std::string& caption, QChar mnemonic);

}  // namespace trv5
