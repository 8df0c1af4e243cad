#include "console/console.h"

#include <QApplication>
#include <QWidget>
#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

#include "console/arguments.h"
#include "console/control_actions.h"
#include "console/grid_dump.h"
#include "core/dates.h"
#include "core/errors.h"
#include "core/text.h"
#include "screens/shell/Container.h"
#include "screens/shell/help_viewer.h"
#include "screens/shell/run_place.h"

namespace trv5 {
namespace {

std::string jsonText(const std::string& text) {
  return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string failure(const std::string& error) {
  return "{\"ok\":false,\"error\":" + jsonText(error) + "}";
}

nlohmann::json describe(const Script::Shown& box) {
  nlohmann::json out = {{"kind", box.kind}, {"title", box.title}, {"text", box.text}, {"icon", box.icon}};
  const auto add = [&](const char* name, const auto& value) {
    if (value) out[name] = *value;
  };
  add("default", box.initial);
  add("folder", box.folder);
  add("filter", box.filter);
  add("orientation", box.orientation);
  add("margin", box.margin);
  add("reason", box.reason);
  return out;
}

// Two digits or more, as a moment is written; -1 where something else stands.
int digits(std::string_view text) {
  const bool all = std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
  return all ? numberOf(text) : -1;
}

}  // namespace

Console::Console(Theme& theme, std::vector<ScreenEntry> screens) : m_theme(theme), m_screens(std::move(screens)) {}

Console::~Console() = default;

const std::map<std::string, Console::Command, std::less<>>& Console::commands() {
  static const std::map<std::string, Command, std::less<>> known = {{"start", &Console::start},
                                                                    {"click", &Console::click},
                                                                    {"dblclick", &Console::doubleClick},
                                                                    {"set", &Console::set},
                                                                    {"get", &Console::get},
                                                                    {"cell", &Console::cell},
                                                                    {"edit", &Console::edit},
                                                                    {"dump", &Console::dump},
                                                                    {"list", &Console::list},
                                                                    {"answer", &Console::queueAnswer},
                                                                    {"messages", &Console::messages},
                                                                    {"clipboard", &Console::clipboard},
                                                                    {"key", &Console::key},
                                                                    {"clock", &Console::clock},
                                                                    {"focus", &Console::focus},
                                                                    {"screens", &Console::screens},
                                                                    {"controls", &Console::controls},
                                                                    {"memory", &Console::memory},
                                                                    {"shot", &Console::shot},
                                                                    {"quit", &Console::quit}};
  return known;
}

std::string Console::answer(const std::string& line) {
  const std::string_view content = trimmed(line);
  if (content.empty() || content.front() == '#' || content == "\r") return {};
  try {
    const nlohmann::json parsed = nlohmann::json::parse(line, nullptr, false);
    if (!parsed.is_array() || parsed.empty() || !parsed[0].is_string())
      throw LineError("la riga non è una lista JSON che comincia con un comando");
    const auto command = commands().find(parsed[0].get<std::string>());
    if (command == commands().end()) throw LineError("comando sconosciuto: " + parsed[0].get<std::string>());
    const std::string result = (this->*command->second)(parsed);
    tidy();
    return result.empty() ? "{\"ok\":true}" : "{\"ok\":true," + result + "}";
  } catch (const std::exception& error) {
    m_understood = false;
    tidy();
    return failure(error.what());
  }
}

// What an operation has closed is destroyed after it; a program that has ended has no screens.
void Console::tidy() {
  if (m_shell == nullptr) return;
  if (m_shell->ended()) m_shell->closeAll();
  m_shell->purge();
}

ConsoleShell& Console::shell() const {
  if (m_shell == nullptr) throw LineError("il programma non è avviato: manca la riga start");
  if (m_shell->ended()) throw LineError("il programma è terminato");
  return *m_shell;
}

Console::Target Console::screenOf(const Arguments& line) const {
  const std::string name = textArgument(line, 1);
  Target found;
  found.form = shell().form(name);
  found.screen = shell().widget(name);
  // The help is no screen of the program, but can be looked at like one.
  if (HelpViewer* const help = shell().helpViewer(); help != nullptr && help->objectName() == qs(name))
    found.screen = help;
  if (found.screen == nullptr) {
    if (!shell().hasScreen(name)) throw LineError("schermata sconosciuta: " + name);
    throw LineError("la schermata non è aperta: " + name);
  }
  return found;
}

Console::Target Console::target(const Arguments& line) const {
  Target found = screenOf(line);
  const std::string name = textArgument(line, 2);
  if (found.form != nullptr) found.control = found.form->find(name);
  found.widget =
      found.form != nullptr ? shell().widget(textArgument(line, 1), name) : found.screen->findChild<QWidget*>(qs(name));
  if (found.control == nullptr && found.widget == nullptr)
    throw LineError("controllo sconosciuto: " + name + " su " + textArgument(line, 1));
  return found;
}

Console::Target Console::enabledTarget(const Arguments& line) const {
  Target found = target(line);
  const bool enabled =
      (found.control == nullptr || found.control->enabled()) && (found.widget == nullptr || found.widget->isEnabled());
  if (!enabled) throw LineError("controllo disabilitato: " + textArgument(line, 2));
  return found;
}

std::string Console::start(const Arguments& line) {
  const std::filesystem::path folder = textArgument(line, 1);
  m_shell.reset();
  m_program.reset();
  m_shell = std::make_unique<ConsoleShell>(m_script, m_screens);
  m_program = std::make_unique<Program>(*m_shell, folder, shippedModel());
  m_shell->attach(*m_program);
  try {
    m_shell->show("INIZIO");
  } catch (const UserError& error) {
    // The program ends with the system's message.
    m_shell->message({.text = error.what(), .title = "TRV5", .icon = Icon::Critical});
    m_shell->quit();
    throw;
  }
  return {};
}

std::string Console::dump(const Arguments& line) {
  const auto* const grid = dynamic_cast<const GridControl*>(target(line).control);
  if (grid == nullptr) throw LineError("non è una griglia: " + textArgument(line, 2));
  return dumpFields(grid->grid());
}

std::string Console::list(const Arguments& line) {
  const Control* const control = target(line).control;
  if (const auto* const combo = dynamic_cast<const Combo*>(control)) return answerFields({{"items", combo->items()}});
  if (const auto* const lines = dynamic_cast<const LineList*>(control))
    return answerFields({{"items", lines->lines()}});
  throw LineError("non è una lista: " + textArgument(line, 2));
}

std::string Console::queueAnswer(const Arguments& line) {
  using Answer = Script::Answer;
  static const std::map<std::string, Answer, std::less<>> kinds = {{"yes", Answer::Yes},   {"no", Answer::No},
                                                                   {"ok", Answer::Ok},     {"cancel", Answer::Cancel},
                                                                   {"text", Answer::Text}, {"file", Answer::File}};
  const auto kind = kinds.find(textArgument(line, 1));
  if (kind == kinds.end()) throw LineError("risposta sconosciuta: " + textArgument(line, 1));
  const bool carries = kind->second == Answer::Text || kind->second == Answer::File;
  const std::string text = carries ? textArgument(line, 2) : std::string();
  m_script.answers.push_back({kind->second, text});
  return {};
}

std::string Console::messages(const Arguments&) {
  nlohmann::json all = nlohmann::json::array();
  for (const Script::Shown& shown : std::exchange(m_script.messages, {})) all.push_back(describe(shown));
  return answerFields({{"messages", std::move(all)}});
}

std::string Console::clipboard(const Arguments& line) {
  if (line.size() > 1) shell().setClipboard(textArgument(line, 1));
  return answerFields({{"text", shell().clipboard()}});
}

std::string Console::clock(const Arguments& line) {
  const std::string text = textArgument(line, 1);
  const auto part = [&](std::size_t from, std::size_t length) {
    return digits(std::string_view(text).substr(from, length));
  };
  if (text.size() != 19 || text[2] != '/' || text[5] != '/' || text[10] != ' ' || text[13] != ':' || text[16] != ':')
    throw LineError("il momento va scritto GG/MM/AAAA HH:MM:SS");
  const DateTime moment{part(6, 4), part(3, 2), part(0, 2), part(11, 2), part(14, 2), part(17, 2)};
  const auto within = [](int value, int highest) { return value >= 0 && value <= highest; };
  if (!dayOf(moment.year, moment.month, moment.day) || !within(moment.hour, 23) || !within(moment.minute, 59) ||
      !within(moment.second, 59))
    throw LineError("il momento non esiste: " + text);
  m_script.clock = moment;
  return {};
}

std::string Console::screens(const Arguments&) {
  if (m_shell == nullptr || m_shell->ended()) return answerFields({{"screens", nlohmann::json::array()}});
  return answerFields({{"screens", m_shell->openScreens()}});
}

std::string Console::quit(const Arguments&) {
  m_quit = true;
  return {};
}

}  // namespace trv5
