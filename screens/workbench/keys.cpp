// The keys of the workbench, and the way of the Tab key through it.
#include <QHash>
#include <QHelpEvent>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QToolTip>
#include <utility>

#include "screens/workbench/Sommativi1.h"
#include "screens/workbench/search.h"

namespace trv5 {
namespace {

// Tab walks the road, by the controls' names.
constexpr const char* kRoad[] = {
    // Reference bar.
    "Command42_0", "hs1", "Command42_1", "Command42_2", "Command42_3", "Label1_0", "FgRG", "Label17", "Label18",
    "ComboColpi", "Command87", "Cmd_Annulla", "Cmd_Ripeti", "Command70",
    // Selezioni.
    "SSTab1", "ComboFiltro", "ComboPar", "Command14", "ComboR1", "ComboNC", "ComboQNu", "Ch_ultima", "LblPN_1",
    "LblPN_2", "LblPN_3", "LblPN_4", "LblPN_5", "FgNu", "Command24", "Command25", "Command26", "ComboValF", "Command8",
    "TxtNumeri", "Command6", "Ch_analisi2ruote", "ComboRetro", "Label4", "Label19", "FgRR", "ComboQNR1", "ComboQNR2",
    "ChDDS", "Ch_ISO", "Command41", "Command44",
    // Elenco estrazioni.
    "Command12", "Command103", "Command27", "FgEv", "FgSSS",
    // Ricerca.
    "List1", "Command3", "Cmd_Colora_fgf", "ComboEle", "Combo1R_1N", "Combo1R_2N", "ComboFix", "ChFix1R", "Ch_Scoperti",
    "Command20", "Command11", "Command13", "Command15", "Command23", "Command17", "Command16", "Command7", "Command18",
    "Command10", "Command1", "Command2", "Command77", "Command101", "Command100", "Command99", "Cmd_Totale",
    "ComboOrdine", "Command28", "Command39", "Command37", "Command31", "Command105", "Command64", "Command46",
    "Command43", "Command45", "Command40", "Command107", "Command73", "Command56", "Command58", "Command57",
    "Command59", "Command108", "Command84", "FgF", "Cmd_LaSorte_1", "Cmd_LaSorte_2", "Cmd_LaSorte_3", "Cmd_LaSorte_6",
    "ChVerifica", "Command22", "Cmd_Avanti",
    // Forecasts: table, its buttons, its hits.
    "SSTab3", "Fg11", "Command29", "Command21", "Command90", "Command32", "Command19", "Check3", "FgZ1", "Stampa_FgZ1",
    "Copia_FgZ1", "Command75", "Fg22", "Command34", "Command5", "Rimuove_Fg22", "Nuova_Fg22", "FgZ2", "Stampa_FgZ2",
    "Copia_FgZ2", "Pulisce_FgZ2", "Fg33", "Command48", "Command91", "Rimuove_Fg33", "Nuova_Fg33", "FgZ3", "Stampa_FgZ3",
    "Copia_FgZ3", "Pulisce_FgZ3", "ChA", "ChB", "ChC", "Ch1esito", "Command86", "Command96", "Command98", "Command97",
    "FgZZ", "ComboSorte", "Cmd_Elabora100", "Command30", "Fg00", "Command51", "Command92", "Rimuove_Fg00", "Nuova_Fg00",
    "FgZ0", "Stampa_FgZ0", "Copia_FgZ0", "Pulisce_FgZ0", "Command85", "Command35", "Command102", "Command50",
    "Command55", "Command60", "Command61", "Ch_FF_1", "Ch_FF_2", "Ch_FF_3", "Ch_FF_0", "Command62", "Command38",
    "Command93", "FgIC", "Command63", "Fg15", "FgGioco", "Command106", "SSTab4", "Command109", "Command110", "FgRagg",
    "Command114", "Command115", "Command116", "FgConv", "Command9", "OptionRit_0", "OptionRit_1", "OptionRit_2",
    "Command88", "Command76", "Ch_coperture", "ComboDelta", "Command111", "Command112", "Command113", "Command104",
    "Command89", "FgRit", "Txt_Denominazione", "Command4", "Cmd_Riprendi", "Cmd_Elenco", "Txt_FiltroConfig",
    "Command54", "FgPir1",
    // Statistiche.
    "Fg_Stat", "Fg_Graf"};

// Buttons and the keys that press them, for their tooltips.
struct KeyOfControl {
  const char* control;
  const char* sequence;
};
constexpr KeyOfControl kKeys[] = {{"Command42_1", "F3"},    {"Command42_3", "Alt+End"}, {"Command70", "F1"},
                                  {"Command87", "Ctrl+F5"}, {"Command44", "F5"},        {"Command22", "Shift+F7"},
                                  {"Cmd_LaSorte_1", "F7"},  {"Cmd_LaSorte_2", "F7"},    {"Cmd_LaSorte_3", "F7"},
                                  {"Cmd_LaSorte_6", "F7"},  {"Command29", "F8"},        {"Command34", "F8"},
                                  {"Command48", "F8"},      {"Command51", "F8"},        {"Command86", "F9"},
                                  {"Command4", "Ctrl+S"},   {"Cmd_Annulla", "Ctrl+Z"},  {"Cmd_Ripeti", "Ctrl+Shift+Z"},
                                  {"Command20", "F6"},      {"Command28", "F6"},        {"Command46", "F6"},
                                  {"Command56", "F6"}};

// Adds the key to whatever tooltip its widget has at the moment.
class KeyTip : public QObject {
 public:
  KeyTip(QWidget& widget, QString key) : QObject(&widget), m_key(std::move(key)) {
    setObjectName(QStringLiteral("keyTip"));
    widget.setAccessibleDescription(m_key);
    widget.installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ToolTip) return false;
    auto* const widget = static_cast<QWidget*>(watched);
    const QString text = widget->toolTip().isEmpty() ? widget->accessibleName() : widget->toolTip();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), QStringLiteral("%1 (%2)").arg(text, m_key),
                       widget);
    return true;
  }

 private:
  QString m_key;
};

// The verification of the tab whose searches are in front.
const char* verifyAll(const Workbench& w) {
  if (w.Cmd_LaSorte[2].enabled()) return "Command34";
  if (w.Cmd_LaSorte[3].enabled()) return "Command48";
  if (w.Cmd_LaSorte[6].enabled()) return "Command51";
  return "Command29";
}

}  // namespace

void Sommativi1Screen::key(const QKeySequence& sequence, std::function<void()> run) {
  connect(new QShortcut(sequence, this), &QShortcut::activated, this, std::move(run));
}

void Sommativi1Screen::buildKeys() {
  const auto press = [this](const char* name) {
    if (Button& button = m_w.button(name); button.enabled()) button.press();
  };
  const auto presses = [this, press](const QKeySequence& sequence, const char* name) {
    key(sequence, [press, name] { press(name); });
  };
  presses(Qt::Key_F3, "Command42_1");
  presses(Qt::Key_F5, "Command44");
  presses(Qt::CTRL | Qt::Key_F5, "Command87");
  presses(Qt::SHIFT | Qt::Key_F7, "Command22");
  presses(Qt::Key_F9, "Command86");
  presses(Qt::CTRL | Qt::Key_S, "Command4");
  presses(Qt::CTRL | Qt::Key_Z, "Cmd_Annulla");
  presses(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, "Cmd_Ripeti");
  presses(Qt::ALT | Qt::Key_End, "Command42_3");
  key(Qt::Key_F2, [this] { m_w.SSTab1.set(m_w.SSTab1.index() == 1 ? 0 : 1); });
  key(Qt::Key_F6, [this] { m_search->focusSearches(); });
  key(Qt::Key_F7, [this] {
    for (const auto& [sorte, button] : m_w.Cmd_LaSorte)
      if (button->enabled()) return button->press();
  });
  key(Qt::Key_F8, [this, press] { press(verifyAll(m_w)); });
  for (int tab = 0; tab < 10; ++tab) {
    const Qt::Key digit = static_cast<Qt::Key>(Qt::Key_0 + (tab + 1) % 10);
    key(Qt::CTRL | digit, [this, tab] {
      if (m_w.SSTab3.tabEnabled(tab)) m_w.SSTab3.set(tab);
    });
  }
  key(Qt::ALT | Qt::Key_Left, [this] { m_w.hs1.set(m_w.hs1.value() - 1); });
  key(Qt::ALT | Qt::Key_Right, [this] { m_w.hs1.set(m_w.hs1.value() + 1); });
  key(Qt::ALT | Qt::Key_Home, [this] { m_w.hs1.set(m_w.hs1.minimum()); });
}

void Sommativi1Screen::tellKeys() {
  for (const KeyOfControl& key : kKeys) {
    auto* const widget = findChild<QWidget*>(QLatin1String(key.control));
    if (widget == nullptr || widget->findChild<QObject*>(QStringLiteral("keyTip")) != nullptr) continue;
    new KeyTip(*widget, QKeySequence(QLatin1String(key.sequence)).toString(QKeySequence::NativeText));
  }
}

void Sommativi1Screen::orderTabs() {
  QHash<QString, QWidget*> named;
  for (auto* const widget : findChildren<QWidget*>())
    if (!widget->objectName().isEmpty()) named.insert(widget->objectName(), widget);
  QWidget* before = nullptr;
  for (const char* const name : kRoad) {
    QWidget* widget = named.value(QLatin1String(name));
    if (widget == nullptr) continue;
    // The pages of a tab widget are inside it: it is the bar that comes before them.
    if (auto* const tabs = qobject_cast<QTabWidget*>(widget)) widget = tabs->tabBar();
    if (before != nullptr) setTabOrder(before, widget);
    before = widget;
  }
}

}  // namespace trv5
