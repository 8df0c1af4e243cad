// The console takes whatever lines come: it answers each in its own way, and goes on.
#include "console/line_fuzz.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "console/console.h"
#include "screens/kit/theme.h"
#include "support/fuzz_loop.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

using nlohmann::json;

constexpr int kSession = 250;  // lines from one start on a fresh folder to the next

// The folder of the run and that of the user are those of the test, as long as this lives.
class Elsewhere {
 public:
  Elsewhere(const std::filesystem::path& folder, const std::filesystem::path& userData)
      : m_before(std::filesystem::current_path()) {
    std::filesystem::current_path(folder);
    setenv("XDG_DATA_HOME", userData.c_str(), 1);
  }
  ~Elsewhere() {
    std::filesystem::current_path(m_before);
    unsetenv("XDG_DATA_HOME");
  }
  Elsewhere(const Elsewhere&) = delete;
  Elsewhere& operator=(const Elsewhere&) = delete;

 private:
  std::filesystem::path m_before;
};

// A program folder with a small archive, and a console that has come as far as the workbench.
struct Session {
  Session() {
    std::mt19937 rng(3);
    world.makeBoth(randomRows(rng, 60));
    here = std::make_unique<Elsewhere>(world.folder.path(), world.userFolder.path());
    console = std::make_unique<Console>(Theme::edit());
    begin();
  }
  ~Session() { console.reset(); }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  void begin() {
    for (const char* const line : {R"(["start","."])", R"(["click","INIZIO","Command2"])",
                                   R"(["click","Container","Command4"])", R"(["messages"])"})
      console->answer(line);
  }
  bool open() const { return console->answer(R"(["screens"])").find("Sommativi1") != std::string::npos; }

  ProgramWorld world;
  std::unique_ptr<Elsewhere> here;
  std::unique_ptr<Console> console;
};

// What an exception of a library says of itself.
bool isForeign(const std::string& text) {
  for (const char* const sign : {"json.exception", "std::", "basic_string", "vector", "map::at", "bad_", "stoi",
                                 "filesystem error", "out_of_range", "Errore imprevisto: ", "a state of", "optional"})
    if (text.find(sign) != std::string::npos) return true;
  return false;
}

std::string faultOfAnswer(const std::string& line, const std::string& answer, bool& refused) {
  if (answer.empty()) {
    const std::size_t first = line.find_first_not_of(" \t\r");
    return first == std::string::npos || line[first] == '#' ? "" : "no answer";
  }
  const json parsed = json::parse(answer, nullptr, false);
  if (!parsed.is_object() || !parsed.contains("ok") || !parsed["ok"].is_boolean()) return "not an answer: " + answer;
  if (answer.find('\n') != std::string::npos) return "an answer of more than one line";
  if (parsed["ok"].get<bool>()) return "";
  refused = true;
  if (!parsed.contains("error") || !parsed["error"].is_string()) return "refused without a reason";
  const std::string error = parsed["error"];
  if (error.empty()) return "refused without a word";
  return isForeign(error) ? "not an error for a user: " + error : "";
}

class ConsoleLines : public testing::Test {
 protected:
  FuzzTarget target() {
    return {"RigheConsole", 2500, [this](int input) { return make(input); },
            [this](const std::string& bytes, bool& refused) { return take(bytes, refused); }};
  }
  void fresh() {
    m_session.reset();
    m_session = std::make_unique<Session>();
    m_taken = 0;
  }

 private:
  // The first of the session where a run begins; the lines before it are taken again.
  std::string make(int input) {
    if (m_session == nullptr || input % kSession == 0) {
      fresh();
      for (int before = input - input % kSession; before < input; ++before) {
        bool refused = false;
        take(lineOf(before), refused);
      }
    }
    return lineOf(input);
  }

  // The lines as they come, one in two of them changed.
  static std::string lineOf(int input) {
    const std::vector<std::string>& lines = walkedLines();
    std::mt19937 rng(static_cast<unsigned>(input));
    std::mt19937 session(static_cast<unsigned>(input / kSession));
    const std::size_t at = session() % lines.size() + static_cast<std::size_t>(input % kSession);
    const std::string& line = lines[at % lines.size()];
    return rng() % 2 == 0 ? line : wrongLine(lines, line, rng);
  }

  std::string take(const std::string& bytes, bool& refused) {
    std::istringstream lines(bytes);
    for (std::string line; std::getline(lines, line);) {
      const std::string answer = m_session->console->answer(line);
      if (const std::string fault = faultOfAnswer(line, answer, refused); !fault.empty()) return fault;
    }
    const std::string boxes = m_session->console->answer(R"(["messages"])");
    if (boxes.find("Errore imprevisto: ") != std::string::npos) return boxes;
    if (++m_taken % 8 == 0 && !m_session->open()) m_session->begin();
    return "";
  }

  std::unique_ptr<Session> m_session;
  int m_taken = 0;
};

TEST_F(ConsoleLines, TakeAnyBytes) {
  feed(target());
}

TEST_F(ConsoleLines, TakeTheCasesKept) {
  fresh();
  feedKept(target(), TRV5_TEST_DATA);
}

}  // namespace
}  // namespace trv5
