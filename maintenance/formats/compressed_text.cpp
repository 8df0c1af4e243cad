#include "maintenance/formats/compressed_text.h"

#include <archive.h>
#include <archive_entry.h>
#include <fmt/format.h>
#include <zlib.h>

#include <memory>
#include <string_view>
#include <utility>

#include "core/errors.h"
#include "core/file_writer.h"

namespace trv5 {
namespace {

constexpr std::size_t kPiece = 64 * 1024;  // bytes unpacked at a time

[[noreturn]] void fail(const std::filesystem::path& path, std::string_view reason, std::string details = {}) {
  throw UserError(fmt::format("Il file \"{}\" non può essere letto: {}.", path.string(), reason), "Avviso",
                  std::move(details));
}

[[noreturn]] void tooLong(const std::filesystem::path& path, std::size_t maxBytes) {
  fail(path, fmt::format("il testo supera i {} byte che si possono leggere", maxBytes));
}

// Unpacked by zlib itself: libarchive reads gzip without verifying its check sum, so that a damaged number would pass.
std::string unpackGzip(const std::filesystem::path& path, std::string& packed, std::size_t maxBytes) {
  constexpr int kGzipOnly = 16 + MAX_WBITS;
  z_stream stream{};
  if (inflateInit2(&stream, kGzipOnly) != Z_OK) throw std::bad_alloc();
  const std::unique_ptr<z_stream, int (*)(z_stream*)> guard(&stream, inflateEnd);
  stream.next_in = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_in = static_cast<uInt>(packed.size());

  std::string text;
  std::string piece(kPiece, '\0');
  for (;;) {
    stream.next_out = reinterpret_cast<Bytef*>(piece.data());
    stream.avail_out = static_cast<uInt>(piece.size());
    const int outcome = inflate(&stream, Z_NO_FLUSH);
    text.append(piece, 0, piece.size() - stream.avail_out);
    if (text.size() > maxBytes) tooLong(path, maxBytes);
    if (outcome == Z_STREAM_END) {
      if (stream.avail_in == 0) return text;
      inflateReset(&stream);  // a second packed piece may follow the first
    } else if (outcome == Z_BUF_ERROR || (outcome == Z_OK && stream.avail_in == 0 && stream.avail_out > 0)) {
      fail(path, "il file compresso (gzip) è troncato");
    } else if (outcome != Z_OK) {
      fail(path, "il file compresso (gzip) è danneggiato");
    }
  }
}

std::string unpackZip(const std::filesystem::path& path, const std::string& packed, std::size_t maxBytes) {
  const std::unique_ptr<archive, int (*)(archive*)> reader(archive_read_new(), archive_read_free);
  if (!reader) throw std::bad_alloc();
  const auto damaged = [&]() {
    const char* reason = archive_error_string(reader.get());
    fail(path, "il file compresso (zip) è danneggiato o troncato", reason == nullptr ? "" : reason);
  };
  archive_read_support_format_zip(reader.get());
  if (archive_read_open_memory(reader.get(), packed.data(), packed.size()) != ARCHIVE_OK) damaged();

  std::string text;
  std::string piece(kPiece, '\0');
  bool found = false;
  archive_entry* entry = nullptr;
  for (;;) {
    const int outcome = archive_read_next_header(reader.get(), &entry);
    if (outcome == ARCHIVE_EOF) break;
    if (outcome != ARCHIVE_OK) damaged();
    if (archive_entry_filetype(entry) == AE_IFDIR) continue;
    if (found) fail(path, "l'archivio zip contiene più di un file");
    found = true;
    la_ssize_t count;
    while ((count = archive_read_data(reader.get(), piece.data(), piece.size())) > 0) {
      text.append(piece, 0, static_cast<std::size_t>(count));
      if (text.size() > maxBytes) tooLong(path, maxBytes);
    }
    if (count < 0) damaged();
  }
  if (!found) fail(path, "l'archivio zip non contiene nessun file");
  return text;
}

bool beginsWith(const std::string& bytes, std::string_view mark) {
  return bytes.compare(0, mark.size(), mark) == 0;
}

}  // namespace

std::string readCompressedText(const std::filesystem::path& path, std::size_t maxBytes) {
  std::string bytes = readFile(path, maxBytes);
  if (beginsWith(bytes, "\x1F\x8B")) return unpackGzip(path, bytes, maxBytes);
  if (beginsWith(bytes, "PK\x03\x04") || beginsWith(bytes, "PK\x05\x06")) return unpackZip(path, bytes, maxBytes);
  return bytes;
}

}  // namespace trv5
