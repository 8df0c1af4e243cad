#include "maintenance/transfer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

#include "support/ftp_server.h"
#include "support/loopback_server.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

using Answer = LoopbackServer::Answer;
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;
using testing::HasSubstr;

// How long the longest advance() took: a window that calls it stands still so long.
struct Fetched {
  std::string bytes, error;
  milliseconds longest{0}, whole{0};
};

Fetched fetch(const std::string& address, const TransferLimits& limits = {}) {
  Fetched fetched;
  const auto begun = Clock::now();
  try {
    const auto transfer = beginTransfer(address, limits);
    for (bool more = true; more;) {
      const auto before = Clock::now();
      more = transfer->advance();
      fetched.longest = std::max(fetched.longest, std::chrono::duration_cast<milliseconds>(Clock::now() - before));
      fetched.bytes = transfer->bytes();
      std::this_thread::sleep_for(milliseconds(1));
    }
  } catch (const TransferError& error) {
    fetched.error = error.what();
  }
  fetched.whole = std::chrono::duration_cast<milliseconds>(Clock::now() - begun);
  EXPECT_LT(fetched.longest, milliseconds(500)) << "no step waits for the server";
  return fetched;
}

TEST(Transfer, FetchesAFile) {
  const LoopbackServer server([](const Answer& answer, const std::string& request) {
    answer.http("200 OK", request.substr(0, request.find(' ', 4)));
  });
  const Fetched fetched = fetch(server.address() + "/folder/file.txt");
  EXPECT_EQ(fetched.bytes, "GET /folder/file.txt");
  EXPECT_EQ(fetched.error, "");
}

TEST(Transfer, TakesAnAddressWithoutSchemeForHttp) {
  const LoopbackServer server([](const Answer& answer, const std::string&) { answer.http("200 OK", "text"); });
  EXPECT_EQ(fetch(server.address().substr(7)).bytes, "text");
}

TEST(Transfer, AnEmptyFileIsAFile) {
  const LoopbackServer server([](const Answer& answer, const std::string&) { answer.http("200 OK", ""); });
  const Fetched fetched = fetch(server.address());
  EXPECT_EQ(fetched.bytes + fetched.error, "");
}

TEST(Transfer, TellsHowMuchIsToCome) {
  const LoopbackServer server([](const Answer& answer, const std::string&) {
    answer.send("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n" + std::string(400, 'x'));
    while (answer.pause(1000)) continue;
  });
  const auto transfer = beginTransfer(server.address());
  while (transfer->bytes().size() < 400) {
    ASSERT_TRUE(transfer->advance());
    std::this_thread::sleep_for(milliseconds(1));
  }
  EXPECT_EQ(transfer->announced(), 1000U);
}

TEST(Transfer, FollowsAServerToHttpOnly) {
  const LoopbackServer target([](const Answer& answer, const std::string&) { answer.http("200 OK", "arrived"); });
  const LoopbackServer server([&](const Answer& answer, const std::string& request) {
    const bool toFtp = request.find("/ftp") != std::string::npos, toFile = request.find("/file") != std::string::npos;
    const std::string where = toFtp    ? "ftp" + target.address().substr(4)
                              : toFile ? "file:///etc/hostname"
                                       : target.address();
    answer.http("302 Found", "", "Location: " + where + "/\r\n");
  });
  EXPECT_EQ(fetch(server.address()).bytes, "arrived");
  EXPECT_THAT(fetch(server.address() + "/ftp").error, HasSubstr("http, https, ftp o ftps"));
  EXPECT_THAT(fetch(server.address() + "/file").error, HasSubstr("http, https, ftp o ftps"));
}

TEST(Transfer, GivesUpAServerThatLeadsInCircles) {
  const LoopbackServer server(
      [](const Answer& answer, const std::string&) { answer.http("302 Found", "", "Location: /again\r\n"); });
  EXPECT_THAT(fetch(server.address()).error, HasSubstr("rimanda sempre"));
}

TEST(Transfer, TellsTheErrorOfTheServer) {
  const LoopbackServer server([](const Answer& answer, const std::string&) { answer.http("404 Not Found", "no"); });
  const Fetched fetched = fetch(server.address());
  EXPECT_THAT(fetched.error, HasSubstr("404"));
  EXPECT_EQ(fetched.bytes, "") << "the page that tells the error is no file";
}

TEST(Transfer, AConnectionClosedHalfWayIsNoFile) {
  const LoopbackServer server([](const Answer& answer, const std::string&) {
    answer.send("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n" + std::string(500, 'x'));
  });
  EXPECT_THAT(fetch(server.address()).error, HasSubstr("interrotto"));
  const LoopbackServer silent([](const Answer&, const std::string&) {});
  EXPECT_THAT(fetch(silent.address()).error, HasSubstr("interrotto"));
}

TEST(Transfer, StopsAtSixteenMiBWhetherAnnouncedOrNot) {
  const std::string body(std::size_t{20} << 20, 'x');
  const LoopbackServer announced([&](const Answer& answer, const std::string&) { answer.http("200 OK", body); });
  EXPECT_THAT(fetch(announced.address()).error, HasSubstr("16777216 byte"));
  const LoopbackServer silent(
      [&](const Answer& answer, const std::string&) { answer.send("HTTP/1.0 200 OK\r\n\r\n" + body); });
  const Fetched fetched = fetch(silent.address());
  EXPECT_THAT(fetched.error, HasSubstr("16777216 byte"));
  EXPECT_LE(fetched.bytes.size(), std::size_t{16} << 20);
}

TEST(Transfer, IsGivenThirtySecondsAndSixteenMiB) {
  EXPECT_EQ(TransferLimits().time, std::chrono::seconds(30));
  EXPECT_EQ(TransferLimits().bytes, 16U * 1024 * 1024);
}

TEST(Transfer, AFileOfExactlyTheLimitArrives) {
  const LoopbackServer server([](const Answer& answer, const std::string&) { answer.http("200 OK", "0123456789"); });
  EXPECT_EQ(fetch(server.address(), {.bytes = 10}).bytes, "0123456789");
  EXPECT_THAT(fetch(server.address(), {.bytes = 9}).error, HasSubstr("supera i 9 byte"));
}

TEST(Transfer, GivesUpAServerThatSendsAByteASecond) {
  const LoopbackServer server([](const Answer& answer, const std::string&) {
    answer.send("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n");
    while (answer.send("x") && answer.pause(1000)) continue;
  });
  const Fetched fetched = fetch(server.address(), {.time = milliseconds(1500)});
  EXPECT_THAT(fetched.error, HasSubstr("entro 2 secondi"));
  EXPECT_LT(fetched.whole, milliseconds(3000));
}

TEST(Transfer, DestroyedBeforeItsEndItIsCancelled) {
  std::atomic<bool> hungUp = false;
  const LoopbackServer server([&](const Answer& answer, const std::string&) {
    answer.send("HTTP/1.1 200 OK\r\nContent-Length: 10000000\r\n\r\n");
    const std::string piece(64, 'x');
    while (answer.send(piece)) answer.pause(1);
    hungUp = true;
  });
  auto transfer = beginTransfer(server.address());
  while (transfer->bytes().empty()) {
    ASSERT_TRUE(transfer->advance());
    std::this_thread::sleep_for(milliseconds(1));
  }
  transfer.reset();
  for (int i = 0; i < 2000 && !hungUp; ++i) std::this_thread::sleep_for(milliseconds(1));
  EXPECT_TRUE(hungUp);
}

TEST(Transfer, RefusesAddressesOfOtherKinds) {
  for (const char* address : {"file:///etc/hostname", "gopher://127.0.0.1/", "dict://127.0.0.1/"})
    EXPECT_THAT(fetch(address).error, HasSubstr("http, https, ftp o ftps")) << address;
  for (const char* address : {"", "http://", "http://a b/", "http://127.0.0.1:port/"})
    EXPECT_NE(fetch(address).error, "") << address;
  EXPECT_THAT(fetch("http://127.0.0.1:" + std::to_string(freePort())).error, HasSubstr("non accetta"));
}

#ifdef TRV5_FTP_SERVER
// It takes a moment until the server listens.
Fetched fetchWhenUp(const std::string& address) {
  Fetched fetched = fetch(address);
  for (int i = 0; i < 200 && fetched.error.find("non accetta") != std::string::npos; ++i) {
    std::this_thread::sleep_for(milliseconds(50));
    fetched = fetch(address);
  }
  return fetched;
}

TEST(Transfer, FetchesByFtpToo) {
  TempFolder folder;
  std::filesystem::create_directory(folder / "inside");
  writeBytes(folder.path() / "inside" / "draws.txt", "one\r\ntwo\r\n");
  const FtpServer server(TRV5_FTP_SERVER, folder.path());
  EXPECT_EQ(fetchWhenUp(server.address() + "/inside/draws.txt").bytes, "one\r\ntwo\r\n");
  EXPECT_THAT(fetchWhenUp(server.address() + "/inside/other.txt").error, HasSubstr("non ha il file"));
}
#endif

}  // namespace
}  // namespace trv5
