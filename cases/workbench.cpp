#include "cases/workbench.h"

namespace trv5 {
namespace {

constexpr const char* kDeadToolTip = "Non ancora disponibile in questa versione";

}  // namespace

Workbench::Workbench(const Archive& draws, Shell& shell) : Form(shell, "Sommativi1", "TRV5", 290), archive(draws) {}

GridControl& Workbench::formulas(Table table) {
  const ByTable<GridControl*> grids = {&Fg11, &Fg22, &Fg33, &Fg00};
  return *grids[indexOf(table)];
}

GridControl& Workbench::hits(Table table) {
  const ByTable<GridControl*> grids = {&FgZ1, &FgZ2, &FgZ3, &FgZ0};
  return *grids[indexOf(table)];
}

void Workbench::addButtons(const WorkbenchButtons& group) {
  for (const WorkbenchButton& row : group.buttons) {
    Button& added = *m_buttons.emplace_back(std::make_unique<Button>(*this, row.name, row.caption, row.toolTip));
    if (row.run != nullptr) {
      added.onEvent([this, run = row.run] { run(*this); });
    } else {
      added.setEnabled(false);
      added.setToolTip(kDeadToolTip);
    }
  }
  if (group.tab >= 0) SSTab3.setTabEnabled(group.tab, group.buttons.front().run != nullptr);
}

void Workbench::addLabel(const std::string& name) {
  m_labels.push_back(std::make_unique<Label>(*this, name));
}

}  // namespace trv5
