#include "core/container.h"
#include "core/inizio.h"
#include "engine/open_workbench.h"
#include "screens/Sommativi1.h"
#include "screens/container_window.h"
#include "screens/inizio_window.h"
#include "screens/screen.h"

namespace trv5 {
namespace {

// `FormType` made of the program, shown by `WidgetType`.
template <class FormType, class WidgetType>
ScreenEntry entry(std::string name, Place place, QSize size = {}) {
  return {.name = std::move(name),
          .place = place,
          .size = size,
          .makeForm = [](Program& program) { return std::make_unique<FormType>(program); },
          .makeWidget = [](Form& form) { return new WidgetType(static_cast<FormType&>(form)); }};
}

template <class FormType>
ScreenEntry loaded(ScreenEntry made) {
  made.load = [](Form& form) { static_cast<FormType&>(form).load(); };
  return made;
}

ScreenEntry workbench() {
  ScreenEntry made = {
      .name = "Sommativi1",
      .makeForm = [](Program& program) { return std::make_unique<Workbench>(program.archive, program.shell); },
      .makeWidget = [](Form& form) { return new Sommativi1(static_cast<Workbench&>(form)); },
      .load = [](Form& form) { openWorkbench(static_cast<Workbench&>(form)); }};
  return made;
}

}  // namespace

std::vector<ScreenEntry> allScreens() {
  return {
      loaded<Inizio>(entry<Inizio, InizioWindow>("INIZIO", Place::Window, {860, 400})),
      loaded<Container>(entry<Container, ContainerWindow>("Container", Place::Window, {1920, 1080})),
      workbench(),
  };
}

}  // namespace trv5
