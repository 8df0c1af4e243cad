// The lines that act on controls and tell what they show.
#include <QLabel>
#include <QTextBrowser>
#include <nlohmann/json.hpp>

#include "console/arguments.h"
#include "console/console.h"
#include "console/control_actions.h"
#include "console/control_list.h"
#include "screens/kit/grid_view.h"
#include "screens/kit/theme.h"

namespace trv5 {
std::string Console::click(const Arguments& line) {
  const Target found = enabledTarget(line);
  clickControl(found.control, found.widget);
  return {};
}

std::string Console::doubleClick(const Arguments& line) {
  const Target found = enabledTarget(line);
  if (found.control == nullptr || !found.control->hasDoubleClick())
    throw LineError("il controllo non ha un'operazione per il doppio clic: " + textArgument(line, 2));
  found.control->doubleClick();
  return {};
}

std::string Console::set(const Arguments& line) {
  const Target found = enabledTarget(line);
  if (line.size() < 4) throw LineError("manca il valore");
  if (found.control == nullptr) throw LineError("il controllo non ha un valore da impostare: " + textArgument(line, 2));
  setControl(*found.control, found.widget, line[3]);
  return {};
}

std::string Console::get(const Arguments& line) {
  if (textArgument(line, 2).empty()) {
    const Target found = screenOf(line);
    const std::string title = found.screen->windowTitle().toStdString();
    return answerFields({{"title", title}, {"help", found.form == nullptr ? 0 : found.form->helpContext()}});
  }
  const Target found = target(line);
  if (found.control != nullptr) return answerFields(describeControl(*found.control));
  nlohmann::json out = {{"enabled", found.widget->isEnabled()}, {"tooltip", found.widget->toolTip().toStdString()}};
  if (const auto* const label = qobject_cast<const QLabel*>(found.widget)) out["text"] = label->text().toStdString();
  if (const auto* const page = qobject_cast<const QTextBrowser*>(found.widget)) {
    out["text"] = page->toPlainText().toStdString();
    out["value"] = page->source().toString().toStdString();
  }
  return answerFields(out);
}

std::string Console::controls(const Arguments& line) {
  const Form* const form = screenOf(line).form;
  nlohmann::json all = nlohmann::json::array();
  if (form != nullptr)
    for (const Control* const control : form->controls()) all.push_back(outlineOf(*control));
  return answerFields({{"controls", std::move(all)}});
}

std::string Console::cell(const Arguments& line) {
  const Target found = enabledTarget(line);
  auto* const grid = dynamic_cast<GridControl*>(found.control);
  if (grid == nullptr) throw LineError("non è una griglia: " + textArgument(line, 2));
  const int row = numberArgument(line, 3), column = numberArgument(line, 4);
  if (row < 0 || row >= grid->rows() || column < 0 || column >= grid->columns())
    throw LineError("la cella non esiste: " + std::to_string(row) + ", " + std::to_string(column));
  const std::string what = textArgument(line, 5);
  if (what != "click" && what != "dblclick") throw LineError("azione sconosciuta: " + what);
  if (row < grid->headingRows()) {
    if (what == "click") grid->clickHeading();
    return {};
  }
  auto* const view = qobject_cast<GridView*>(found.widget);
  if (what == "click")
    view != nullptr ? view->clickCell(row, column) : grid->clickCell(row, column);
  else
    view != nullptr ? view->doubleClickCell(row, column) : grid->doubleClickCell(row, column);
  return {};
}

std::string Console::edit(const Arguments& line) {
  auto* const grid = dynamic_cast<GridControl*>(enabledTarget(line).control);
  if (grid == nullptr) throw LineError("non è una griglia: " + textArgument(line, 2));
  if (!grid->edit(numberArgument(line, 3), numberArgument(line, 4), textArgument(line, 5)))
    throw LineError("la cella non accetta questo testo");
  return {};
}

}  // namespace trv5
