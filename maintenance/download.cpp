#include "maintenance/download.h"

#include <fmt/format.h>

#include <utility>

namespace trv5 {

Download::Download(Form& form, BeginTransfer begin, std::function<void()> changed)
    : m_form(form), m_begin(std::move(begin)), m_changed(std::move(changed)) {}

void Download::fetch(const std::string& address, Arrived arrived, Failed failed) {
  cancel();
  try {
    m_transfer = m_begin(address);
  } catch (const UserError& error) {
    return fail(error, failed);
  }
  m_arrived = std::move(arrived);
  m_failed = std::move(failed);
  m_changed();
  // The form may go, and this one may be over, before the shell's next step.
  m_form.shell().inSteps([weak = weak_from_this(), fetch = ++m_fetches] {
    const auto self = weak.lock();
    return self != nullptr && self->m_fetches == fetch && self->step();
  });
}

void Download::cancel() {
  if (!running()) return;
  ++m_fetches;
  end({});
}

// One move of the transfer; true while there is more to come.
bool Download::step() {
  if (!running()) return false;
  try {
    if (m_transfer->advance()) {
      const std::size_t received = m_transfer->bytes().size(), all = m_transfer->announced();
      m_form.shell().status(fmt::format("Scarico in corso: {} kB", received / 1024));
      if (all > 0) m_form.shell().progress(static_cast<int>(received / 1024), static_cast<int>(all / 1024) + 1);
      return true;
    }
    end([arrived = m_arrived, bytes = m_transfer->bytes()]() mutable { arrived(std::move(bytes)); });
  } catch (const TransferError& error) {
    end([this, error, failed = m_failed] { fail(error, failed); });
  }
  return false;
}

void Download::end(const std::function<void()>& operation) {
  const auto self = shared_from_this();
  m_transfer.reset();
  m_arrived = {};
  m_failed = {};
  m_form.shell().status("");
  m_form.shell().progress(0, 0);
  m_changed();
  m_form.perform(operation);
}

void Download::fail(const UserError& error, const Failed& failed) {
  if (!failed)
    throw UserError(fmt::format("Il file non può essere scaricato: {}.", error.what()), "Avviso", error.details());
  failed(error);
}

}  // namespace trv5
