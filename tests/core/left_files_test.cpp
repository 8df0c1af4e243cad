// What a killed program leaves behind, and files without an end.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>

#include "core/errors.h"
#include "core/file_writer.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> filesIn(const TempFolder& folder) {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder.path()))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

// A process that has begun to write `target` and waits to be killed.
class Writer {
 public:
  explicit Writer(const fs::path& target) {
    int ready[2];
    EXPECT_EQ(pipe(ready), 0);
    m_process = fork();
    if (m_process == 0) {
      PendingFile pending(target);
      pending.write("mezzo");
      const ssize_t told = write(ready[1], "x", 1);
      for (;;) pause();
      _exit(static_cast<int>(told));
    }
    char c = 0;
    EXPECT_EQ(read(ready[0], &c, 1), 1);
    close(ready[0]);
    close(ready[1]);
  }
  ~Writer() { kill(); }
  void kill() {
    if (m_process > 0) ::kill(m_process, SIGKILL);
    if (m_process > 0) waitpid(m_process, nullptr, 0);
    m_process = 0;
  }

 private:
  pid_t m_process = 0;
};

TEST(LeftFiles, OfAKilledProgramAreClearedAtTheNextWriteInTheFolder) {
  TempFolder folder;
  Writer dead(folder / "a.txt");
  dead.kill();
  ASSERT_EQ(filesIn(folder).size(), 1U);
  writeFile(folder / "b.txt", "x");
  EXPECT_THAT(filesIn(folder), ElementsAre("b.txt"));
}

TEST(LeftFiles, OfAProgramThatStillWritesStay) {
  TempFolder folder;
  const Writer alive(folder / "a.txt");
  writeFile(folder / "b.txt", "x");
  EXPECT_EQ(filesIn(folder).size(), 2U);
}

TEST(LeftFiles, OfOthersStay) {
  TempFolder folder;
  const std::vector<std::string> names = {".a.txt.XXXXXX", ".a.txt.trv5-123", ".trv5-abcdef", "a.trv5-abcdef"};
  for (const std::string& name : names) writeBytes(folder / name, "mio");
  fs::create_directory(folder / ".a.txt.trv5-abcdef");
  writeFile(folder / "b.txt", "x");
  EXPECT_EQ(filesIn(folder).size(), names.size() + 2);
}

TEST(LeftFiles, ANameAsLongAsTheDiskTakesCanBeWritten) {
  TempFolder folder;
  const std::string longest(255, 'n');
  writeFile(folder / longest, "x");
  EXPECT_THAT(filesIn(folder), ElementsAre(longest));
}

TEST(ReadFile, AFileWithoutAnEndIsReadUpToItsLimit) {
  try {
    readFile("/dev/zero", 1000);
    FAIL();
  } catch (const UserError& error) {
    EXPECT_THAT(error.what(), HasSubstr("/dev/zero\" non può essere letto: supera i 1000 byte"));
  }
  TempFolder folder;
  writeBytes(folder / "a", std::string(1000, 'x'));
  EXPECT_EQ(readFile(folder / "a", 1000).size(), 1000U);
  EXPECT_THROW(readFile(folder / "a", 999), UserError);
}

}  // namespace
}  // namespace trv5
