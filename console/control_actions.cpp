#include "console/control_actions.h"

#include <fmt/format.h>

#include <QAbstractButton>
#include <QCalendarWidget>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>
#include <nlohmann/json.hpp>

#include "console/arguments.h"
#include "core/dates.h"
#include "screens/kit/click_label.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

int integer(const nlohmann::json& value) {
  if (value.is_boolean()) return value.get<bool>() ? 1 : 0;
  return wholeNumber(value);
}

std::string text(const nlohmann::json& value) {
  if (value.is_number_integer()) return value.dump();
  if (!value.is_string()) throw LineError("il valore dev'essere un testo");
  return value.get<std::string>();
}

void setCombo(Combo& combo, QWidget* widget, const nlohmann::json& value) {
  auto* const list = qobject_cast<QComboBox*>(widget);
  const std::vector<std::string>& items = combo.items();
  int index = -1;
  if (value.is_number_integer()) {
    index = wholeNumber(value);
    if (index < 0 || index >= static_cast<int>(items.size()))
      throw LineError(fmt::format("la lista {} non ha la voce {}", combo.name(), index));
  } else {
    const auto it = std::find(items.begin(), items.end(), text(value));
    if (it != items.end()) {
      index = static_cast<int>(it - items.begin());
    } else if (!combo.editable()) {
      throw LineError(fmt::format("la lista {} non ha la voce \"{}\"", combo.name(), text(value)));
    }
  }
  if (index >= 0) {
    if (list == nullptr) return combo.pick(index);
    list->setCurrentIndex(index);
    Q_EMIT list->activated(index);
  } else if (list == nullptr) {
    combo.type(text(value));
  } else {
    const QString typed = qs(text(value));
    list->setEditText(typed);
    Q_EMIT list->lineEdit()->textEdited(typed);
  }
}

void setCheck(Check& check, QWidget* widget, const nlohmann::json& value) {
  const int wanted = integer(value);
  if (wanted != 0 && wanted != 1) throw LineError("il valore dev'essere 0 o 1");
  if (check.checked() == (wanted == 1)) return;
  if (auto* const button = qobject_cast<QAbstractButton*>(widget))
    button->click();
  else
    check.set(wanted == 1);
}

void setText(Text& control, QWidget* widget, const nlohmann::json& value) {
  const std::string wanted = text(value);
  if (auto* const edit = qobject_cast<QLineEdit*>(widget)) {
    if (edit->isReadOnly()) throw LineError("il controllo non si può scrivere: " + control.name());
    edit->setText(qs(wanted));
  } else {
    control.set(qs(wanted).left(control.maximumLength()).toStdString());
  }
}

void setScroll(Scroll& scroll, QWidget* widget, int value) {
  if (value < scroll.minimum() || value > scroll.maximum())
    throw LineError(fmt::format("{} va da {} a {}", scroll.name(), scroll.minimum(), scroll.maximum()));
  if (auto* const bar = qobject_cast<QScrollBar*>(widget))
    bar->setValue(value);
  else
    scroll.set(value);
}

void setTabs(Tabs& tabs, QWidget* widget, int given) {
  const auto& captions = tabs.captions();
  if (std::none_of(captions.begin(), captions.end(), [&](const auto& tab) { return tab.first == given; }))
    throw LineError(fmt::format("{} non ha la scheda {}", tabs.name(), given));
  if (!tabs.tabEnabled(given)) throw LineError(fmt::format("la scheda {} di {} è disabilitata", given, tabs.name()));
  auto* bar = qobject_cast<QTabBar*>(widget);
  if (const auto* const pages = qobject_cast<QTabWidget*>(widget)) bar = pages->tabBar();
  for (int i = 0; bar != nullptr && i < bar->count(); ++i)
    if (bar->tabData(i).isValid() && bar->tabData(i).toInt() == given) return bar->setCurrentIndex(i);
  tabs.set(given);
}

void setCalendar(Calendar& calendar, QWidget* widget, const nlohmann::json& value) {
  const std::string wanted = text(value);
  if (!dayOfText(wanted)) throw LineError("la data va scritta GG/MM/AAAA");
  if (auto* const shown = qobject_cast<QCalendarWidget*>(widget))
    shown->setSelectedDate(QDate::fromString(qs(wanted), QStringLiteral("dd/MM/yyyy")));
  else
    calendar.set(wanted);
}

}  // namespace

void clickControl(Control* control, QWidget* widget) {
  if (auto* const button = qobject_cast<QAbstractButton*>(widget)) return button->click();
  if (auto* const label = qobject_cast<ClickLabel*>(widget)) {
    if (control == nullptr || control->hasEvent()) {
      Q_EMIT label->clicked();
      return;
    }
  }
  if (auto* const button = dynamic_cast<Button*>(control)) return button->press();
  if (auto* const check = dynamic_cast<Check*>(control)) return check->set(!check->checked());
  if (auto* const label = dynamic_cast<Label*>(control); label != nullptr && label->hasEvent()) return label->click();
  throw LineError("il controllo non si può premere");
}

void setControl(Control& control, QWidget* widget, const nlohmann::json& value) {
  if (auto* const combo = dynamic_cast<Combo*>(&control)) return setCombo(*combo, widget, value);
  if (auto* const check = dynamic_cast<Check*>(&control)) return setCheck(*check, widget, value);
  if (auto* const box = dynamic_cast<Text*>(&control)) return setText(*box, widget, value);
  if (auto* const tabs = dynamic_cast<Tabs*>(&control)) return setTabs(*tabs, widget, integer(value));
  if (auto* const calendar = dynamic_cast<Calendar*>(&control)) return setCalendar(*calendar, widget, value);
  if (auto* const scroll = dynamic_cast<Scroll*>(&control)) return setScroll(*scroll, widget, integer(value));
  throw LineError("il controllo non ha un valore da impostare: " + control.name());
}

std::string answerFields(const nlohmann::json& object) {
  const std::string text = object.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  return text.substr(1, text.size() - 2);
}

nlohmann::json describeControl(const Control& control) {
  nlohmann::json out;
  if (const auto* const button = dynamic_cast<const Button*>(&control)) out["text"] = button->caption();
  if (const auto* const label = dynamic_cast<const Label*>(&control)) out["text"] = label->text();
  if (const auto* const box = dynamic_cast<const Text*>(&control)) out["text"] = box->text();
  if (const auto* const combo = dynamic_cast<const Combo*>(&control)) {
    out["text"] = combo->text();
    out["index"] = combo->index();
  }
  if (const auto* const check = dynamic_cast<const Check*>(&control)) {
    out["text"] = check->caption();
    out["checked"] = check->checked();
    out["value"] = check->checked() ? 1 : 0;
  }
  if (const auto* const scroll = dynamic_cast<const Scroll*>(&control)) {
    out["value"] = scroll->value();
    out["minimum"] = scroll->minimum();
    out["maximum"] = scroll->maximum();
  }
  if (const auto* const bar = dynamic_cast<const Progress*>(&control)) {
    out["value"] = bar->value();
    out["minimum"] = 0;
    out["maximum"] = bar->maximum();
  }
  if (const auto* const tabs = dynamic_cast<const Tabs*>(&control)) {
    out["index"] = tabs->index();
    for (const auto& [given, caption] : tabs->captions())
      if (given == tabs->index()) out["text"] = caption;
  }
  if (const auto* const calendar = dynamic_cast<const Calendar*>(&control)) out["text"] = calendar->date();
  out["enabled"] = control.enabled();
  if (control.back()) out["back"] = fmt::format("{:06X}", *control.back());
  if (control.fore()) out["fore"] = fmt::format("{:06X}", *control.fore());
  out["tooltip"] = control.toolTip();
  return out;
}

}  // namespace trv5
