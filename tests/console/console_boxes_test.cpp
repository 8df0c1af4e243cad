// What the user is asked, and who answers.
#include "console_world.h"

namespace trv5 {
namespace {

TEST_F(ConsoleTest, AnswersBoxesInOrderAndRecordsThem) {
  does("answer", "yes");
  does("answer", "text", "22/08/2026");
  does("answer", "file", "/tmp/uscita");
  does("click", "INIZIO", "Ask");
  EXPECT_EQ(log(), (Lines{"sì", "22/08/2026", "/tmp/uscita.txt"}));
  const json shown = does("messages")["messages"];
  ASSERT_EQ(shown.size(), 5u);
  EXPECT_EQ(shown[0], (json{{"kind", "message"}, {"title", "Avviso"}, {"text", "Primo"}, {"icon", "exclamation"}}));
  EXPECT_EQ(shown[1], (json{{"kind", "confirm"}, {"title", "Domanda"}, {"text", "Vero?"}, {"icon", "question"}}));
  EXPECT_EQ(shown[2]["kind"], "input");
  EXPECT_EQ(shown[2]["default"], "01/01/2026");
  EXPECT_EQ(shown[3]["kind"], "save");
  EXPECT_EQ(shown[3]["folder"], "/tmp");
  EXPECT_EQ(shown[3]["filter"], "*.txt");
  EXPECT_EQ(shown[4]["kind"], "address");
  EXPECT_EQ(shown[4]["text"], "http://esempio.it");
  EXPECT_EQ(does("messages")["messages"], json::array());
}

TEST_F(ConsoleTest, AMessageHoldsTheReasonThatTheBoxShows) {
  made->Command1.onEvent([] {
    made->shell().message({.text = "Errore", .reason = "disco pieno"});
    made->shell().confirm({.text = "Riprovo?", .reason = "disco ancora pieno"});
  });
  does("click", "INIZIO", "Command1");
  const json shown = does("messages")["messages"];
  EXPECT_EQ(shown[0]["reason"], "disco pieno");
  EXPECT_EQ(shown[1]["reason"], "disco ancora pieno");
}

TEST_F(ConsoleTest, BoxesThatFindNoAnswerAreCancelled) {
  does("click", "INIZIO", "Ask");
  EXPECT_EQ(log(), (Lines{"no", "(annullato)", "(annullato)"}));
}

TEST_F(ConsoleTest, OkAcceptsTheDefaultAndAcknowledgesAMessage) {
  does("answer", "ok");  // the message
  does("answer", "no");
  does("answer", "ok");
  does("answer", "cancel");
  does("click", "INIZIO", "Ask");
  EXPECT_EQ(log(), (Lines{"no", "01/01/2026", "(annullato)"}));
  refuses("answer", "forse");
  refuses("answer", "file");
}

TEST_F(ConsoleTest, PrintsIntoThePdfThatTheAnswerNames) {
  const std::string pdf = (world.folder / "formule.pdf").string();
  does("answer", "file", pdf);
  does("click", "INIZIO", "Print");
  EXPECT_EQ(readBytes(pdf).substr(0, 5), "%PDF-");
  const json shown = does("messages")["messages"][0];
  EXPECT_EQ(shown["kind"], "print");
  EXPECT_EQ(shown["title"], "Formule");
  EXPECT_EQ(shown["orientation"], "portrait");
  EXPECT_EQ(shown["margin"], 400);
}

}  // namespace
}  // namespace trv5
