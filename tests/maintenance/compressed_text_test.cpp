#include "maintenance/formats/compressed_text.h"

#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "core/errors.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

struct Packed {
  std::string name, text;
};

// The bytes of these texts packed by libarchive: gzip of the first, or a zip archive of all.
std::string pack(bool zip, const std::vector<Packed>& texts) {
  std::string bytes(4 << 20, '\0');
  std::size_t used = 0;
  archive* writer = archive_write_new();
  if (zip) {
    archive_write_set_format_zip(writer);
  } else {
    archive_write_add_filter_gzip(writer);
    archive_write_set_format_raw(writer);
  }
  archive_write_open_memory(writer, bytes.data(), bytes.size(), &used);
  for (const Packed& packed : texts) {
    archive_entry* entry = archive_entry_new();
    archive_entry_set_pathname(entry, packed.name.c_str());
    const bool folder = packed.name.back() == '/';
    archive_entry_set_filetype(entry, folder ? AE_IFDIR : AE_IFREG);
    archive_entry_set_perm(entry, 0644);
    archive_entry_set_size(entry, static_cast<la_int64_t>(packed.text.size()));
    archive_write_header(writer, entry);
    if (!folder) archive_write_data(writer, packed.text.data(), packed.text.size());
    archive_entry_free(entry);
  }
  archive_write_close(writer);
  archive_write_free(writer);
  bytes.resize(used);
  return bytes;
}

std::string gzip(const std::string& text) {
  return pack(false, {{"storico.txt", text}});
}

// Long enough for several pieces, and not too easy to pack.
std::string longText() {
  std::string text;
  for (unsigned i = 0; i < 20000; ++i) text += std::to_string(i * 2654435761U) + "\n";
  return text;
}

class CompressedText : public testing::Test {
 protected:
  std::string read(const std::string& bytes, std::size_t maxBytes = kMaxTextBytes) {
    writeBytes(folder / "storico", bytes);
    return readCompressedText(folder / "storico", maxBytes);
  }
  // The message of the failure; "" when it could be read.
  std::string failure(const std::string& bytes, std::size_t maxBytes = kMaxTextBytes) {
    try {
      read(bytes, maxBytes);
    } catch (const UserError& error) {
      EXPECT_NE(std::string(error.what()).find((folder / "storico").string()), std::string::npos) << error.what();
      return error.what();
    }
    return "";
  }
  bool failsWith(const std::string& word, const std::string& bytes) {
    const std::string message = failure(bytes);
    EXPECT_NE(message.find(word), std::string::npos) << message;
    return message.find(word) != std::string::npos;
  }

  TempFolder folder;
};

TEST_F(CompressedText, ReadsAPlainTextAsItStands) {
  EXPECT_EQ(read("ciao\r\n\xFF"), "ciao\r\n\xFF");
  EXPECT_EQ(read(""), "");
}

TEST_F(CompressedText, ReadsGzipWhateverItsName) {
  EXPECT_EQ(read(gzip("ciao\n")), "ciao\n");
  EXPECT_EQ(read(gzip("")), "");
  EXPECT_EQ(read(gzip(longText())), longText());
}

TEST_F(CompressedText, ReadsPackedPiecesOneAfterTheOther) {
  EXPECT_EQ(read(gzip("a\n") + gzip("b\n")), "a\nb\n");
}

TEST_F(CompressedText, ReadsTheOneFileOfAZipArchive) {
  EXPECT_EQ(read(pack(true, {{"storico.txt", longText()}})), longText());
  EXPECT_EQ(read(pack(true, {{"dati/", ""}, {"dati/storico.txt", "ciao\n"}})), "ciao\n");
}

TEST_F(CompressedText, RefusesAZipArchiveWithNoneOrSeveralFiles) {
  EXPECT_TRUE(failsWith("nessun file", pack(true, {})));
  EXPECT_TRUE(failsWith("nessun file", pack(true, {{"dati/", ""}})));
  EXPECT_TRUE(failsWith("più di un file", pack(true, {{"a.txt", "a"}, {"b.txt", "b"}})));
}

TEST_F(CompressedText, TellsOfAGzipFileCutOffAnywhere) {
  const std::string bytes = gzip(longText());
  for (const std::size_t length : {std::size_t{2}, std::size_t{9}, std::size_t{12}, bytes.size() / 2, bytes.size() - 9,
                                   bytes.size() - 8, bytes.size() - 1}) {
    SCOPED_TRACE(length);
    EXPECT_TRUE(failsWith("troncato", bytes.substr(0, length)));
  }
}

TEST_F(CompressedText, TellsOfAZipArchiveCutOffInItsContents) {
  const std::string bytes = pack(true, {{"storico.txt", longText()}});
  for (const std::size_t length : {std::size_t{4}, std::size_t{30}, bytes.size() / 4, bytes.size() / 2}) {
    SCOPED_TRACE(length);
    EXPECT_TRUE(failsWith("troncato", bytes.substr(0, length)));
  }
}

TEST_F(CompressedText, TellsOfADamagedByteWhereverItIs) {
  for (const bool zip : {false, true}) {
    const std::string bytes = pack(zip, {{"storico.txt", longText()}});
    const std::size_t begin = 200, end = bytes.size() - 300;
    for (std::size_t at = begin; at < end; at += (end - begin) / 40) {
      SCOPED_TRACE((zip ? "zip " : "gzip ") + std::to_string(at));
      std::string damaged = bytes;
      damaged[at] = static_cast<char>(damaged[at] ^ 0x10);
      EXPECT_NE(failure(damaged), "");
    }
  }
  std::string otherSum = gzip("ciao\n");
  otherSum[otherSum.size() - 6] = static_cast<char>(otherSum[otherSum.size() - 6] ^ 1);
  EXPECT_TRUE(failsWith("danneggiato", otherSum));
}

TEST_F(CompressedText, RefusesMoreThanItsLimitPackedOrNot) {
  const std::string text(1000, 'a');
  for (const std::string& bytes : {text, gzip(text), pack(true, {{"storico.txt", text}})}) {
    EXPECT_NE(failure(bytes, 999), "");
    EXPECT_EQ(read(bytes, 1000), text);
  }
}

TEST_F(CompressedText, TellsOfAFileThatIsMissingOrAFolder) {
  EXPECT_THROW(readCompressedText(folder / "manca"), UserError);
  EXPECT_THROW(readCompressedText(folder.path()), UserError);
}

}  // namespace
}  // namespace trv5
