#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/form.h"
#include "maintenance/transfer.h"

namespace trv5 {

/// Fetches files for the operations of a form while the user works on: one file at a time, told in the status line and
/// the bar of the shell.
class Download : public std::enable_shared_from_this<Download> {
 public:
  using Arrived = std::function<void(std::string bytes)>;
  using Failed = std::function<void(const UserError& error)>;

  /// `changed` runs when a fetch has begun or come to its end.
  Download(Form& form, BeginTransfer begin, std::function<void()> changed);

  bool running() const { return m_transfer != nullptr; }
  /// Begins; one of the two runs at the end as an operation of the form. Without `failed` the error goes to the handler
  /// of all operations. A fetch that goes on is given up for the new one.
  void fetch(const std::string& address, Arrived arrived, Failed failed = {});
  /// Gives up what goes on: neither of the two runs.
  void cancel();

 private:
  bool step();
  void end(const std::function<void()>& operation);
  void fail(const UserError& error, const Failed& failed);

  Form& m_form;
  BeginTransfer m_begin;
  std::function<void()> m_changed;
  std::unique_ptr<Transfer> m_transfer;
  int m_fetches = 0;  // so far; tells the steps of one from those of the next
  Arrived m_arrived;
  Failed m_failed;
};

}  // namespace trv5
