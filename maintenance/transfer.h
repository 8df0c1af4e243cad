#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>

#include "core/errors.h"

namespace trv5 {

/// Why a file couldn't be fetched, in Italian: "il server risponde con l'errore 404".
class TransferError : public UserError {
 public:
  using UserError::UserError;
};

/// The bounds of a transfer.
struct TransferLimits {
  std::size_t bytes = std::size_t{16} << 20;
  std::chrono::milliseconds time{30'000};
};

/// A file on its way from a server. It never waits: whoever wants the file calls advance() from time to time. Destroyed
/// before its end, the transfer is cancelled.
class Transfer {
 public:
  virtual ~Transfer() = default;

  /// Takes what has arrived since; true while more is to come. Throws TransferError.
  virtual bool advance() = 0;
  /// What has arrived so far.
  virtual const std::string& bytes() const = 0;
  /// How many bytes the server has announced; 0 where it told nothing.
  virtual std::size_t announced() const = 0;
};

/// Begins a transfer; a test gives its own.
using BeginTransfer = std::function<std::unique_ptr<Transfer>(const std::string& address)>;

/// Begins to fetch the file at a web address: http, https, ftp or ftps, http where nothing is told; a server may lead
/// on to http and https only. Throws TransferError.
std::unique_ptr<Transfer> beginTransfer(const std::string& address, const TransferLimits& limits = {});

}  // namespace trv5
