// The program is killed from outside in the middle of each operation that writes: what it left is taken back or there
// as a whole.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <thread>

#include "support/random_runs.h"
#include "support/random_search.h"
#include "survival/writing_world.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
using std::chrono::microseconds;

constexpr int kKills = 50;

// What stands in a folder beside a file that is being written: a journal that isn't empty, or a temporary file.
struct LeftInside {
  bool journal = false, temporary = false;
};

LeftInside leftIn(const fs::path& folder) {
  LeftInside left;
  for (const auto& [name, bytes] : imageOf(folder)) {
    left.journal = left.journal || (name.ends_with("-journal") && !bytes.empty());
    left.temporary = left.temporary || fs::path(name).filename().string().front() == '.';
  }
  return left;
}

// The program in a process of its own, which tells by a pipe when the operation begins and when it has ended, and then
// waits to be killed.
class Victim {
 public:
  Victim(WritingWorld& world, const WritingOperation& operation) {
    if (pipe(m_pipe) != 0) throw std::runtime_error("no pipe");
    m_process = fork();
    if (m_process == 0) run(world, operation);
    close(m_pipe[1]);
    if (told() != 'b') throw std::runtime_error("the operation doesn't begin");
  }
  ~Victim() {
    kill();
    close(m_pipe[0]);
  }
  Victim(const Victim&) = delete;
  Victim& operator=(const Victim&) = delete;

  /// True when the operation had ended before.
  bool kill() {
    if (m_process <= 0) return false;
    ::kill(m_process, SIGKILL);
    int status = 0;
    waitpid(m_process, &status, 0);
    m_process = 0;
    if (!WIFSIGNALED(status)) throw std::runtime_error("the program ended by itself");
    return told() == 'e';
  }
  void waitForEnd() const {
    if (told() != 'e') throw std::runtime_error("the operation doesn't end");
  }

 private:
  [[noreturn]] void run(WritingWorld& world, const WritingOperation& operation) const {
    try {
      world.restart();
      operation.ready(world);
      tell('b');
      operation.run(world);
      tell('e');
      for (;;) pause();
    } catch (...) {
      _exit(1);
    }
  }
  void tell(char c) const {
    if (write(m_pipe[1], &c, 1) != 1) _exit(2);
  }
  char told() const {
    char c = 0;
    return read(m_pipe[0], &c, 1) == 1 ? c : '\0';
  }

  int m_pipe[2] = {-1, -1};
  pid_t m_process = 0;
};

class Kills : public testing::TestWithParam<WritingOperation> {
 protected:
  void prepare() {
    GetParam().files(world);
    world.end();
    states.setBefore(world.folder.path());
    {
      const Victim whole(world, GetParam());
      const auto begin = Clock::now();
      whole.waitForEnd();
      span = std::chrono::duration_cast<microseconds>(Clock::now() - begin);
    }
    states.setAfter(world.folder.path());
    ASSERT_TRUE(states.differ()) << "nothing was written";
    states.setBetween(GetParam().between(world.folder.path()));
  }

  // Kills at a random moment, every second time one that lies behind the first sign of writing.
  void strike(bool onceItWrites, std::mt19937& rng) {
    layImage(world.folder.path(), states.imageBefore());
    Victim victim(world, GetParam());
    const auto begin = Clock::now();
    auto moment = microseconds(below(rng, static_cast<int>(span.count()) + 1));
    if (onceItWrites) {
      while (!writes() && Clock::now() - begin < span) std::this_thread::yield();
      moment /= 8;
    }
    std::this_thread::sleep_for(moment);
    const bool ended = victim.kill();
    const LeftInside left = leftIn(world.folder.path());
    journals += left.journal ? 1 : 0;
    temporaries += left.temporary ? 1 : 0;
    ends += ended ? 1 : 0;
    ASSERT_EQ(states.fault(world.folder.path(), ended), "");
  }

  bool writes() const {
    std::error_code gone;  // what is looked at may vanish
    for (fs::recursive_directory_iterator entry(world.folder.path(), gone), end; !gone && entry != end;
         entry.increment(gone)) {
      const std::string name = entry->path().filename().string();
      if (name.ends_with("-journal") || name.front() == '.') return true;
    }
    return false;
  }

  WritingWorld world;
  AllowedStates states;
  microseconds span{};
  int journals = 0, temporaries = 0, ends = 0;
};

TEST_P(Kills, LoseNothing) {
  ASSERT_NO_FATAL_FAILURE(prepare());
  std::mt19937 rng(4);
  const int kills = asked("TRV5_KILLS", randomRuns(kKills));
  for (int kill = 0; kill < kills; ++kill) {
    SCOPED_TRACE("kill " + std::to_string(kill));
    ASSERT_NO_FATAL_FAILURE(strike(kill % 2 == 1, rng));
  }
  std::printf("%d kills: %d with a hot journal, %d in a temporary file, %d behind the end\n", kills, journals,
              temporaries, ends);
  EXPECT_TRUE(kills < kKills || (journals + temporaries) * 5 > kills) << "hardly any kill struck inside";
  ASSERT_NO_THROW(world.restart());
}

INSTANTIATE_TEST_SUITE_P(Of, Kills, testing::ValuesIn(writingOperations()), NameOfOperation());

}  // namespace
}  // namespace trv5
