#include "maintenance/transfer.h"

#include <curl/curl.h>
#include <fmt/format.h>

#include <new>

#include "core/program.h"

namespace trv5 {
namespace {

constexpr long kMostRedirects = 5;

struct EndEasy {
  void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
};
struct EndMulti {
  void operator()(CURLM* handle) const { curl_multi_cleanup(handle); }
};

// The library has to be told once in a run that it is used.
void beginLibrary() {
  static const CURLcode begun = curl_global_init(CURL_GLOBAL_DEFAULT);
  if (begun != CURLE_OK) throw TransferError("la rete non può essere usata", "Avviso", curl_easy_strerror(begun));
}

std::string reasonOfCode(CURLcode code, long status, const TransferLimits& limits) {
  switch (code) {
    case CURLE_UNSUPPORTED_PROTOCOL:
      return "l'indirizzo non è di tipo http, https, ftp o ftps";
    case CURLE_URL_MALFORMAT:
      return "l'indirizzo non è scritto correttamente";
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
      return "il server non si trova: l'indirizzo è errato o manca il collegamento alla rete";
    case CURLE_COULDNT_CONNECT:
      return "il server non accetta il collegamento";
    case CURLE_HTTP_RETURNED_ERROR:
      return fmt::format("il server risponde con l'errore {}", status);
    case CURLE_REMOTE_FILE_NOT_FOUND:
    case CURLE_FTP_COULDNT_RETR_FILE:
    case CURLE_REMOTE_ACCESS_DENIED:
      return "il server non ha il file o non lo concede";
    case CURLE_LOGIN_DENIED:
      return "il server chiede un accesso che non è stato dato";
    case CURLE_TOO_MANY_REDIRECTS:
      return "il server rimanda sempre a un altro indirizzo";
    case CURLE_OPERATION_TIMEDOUT:
      return fmt::format("lo scarico non è terminato entro {} secondi",
                         std::chrono::ceil<std::chrono::seconds>(limits.time).count());
    case CURLE_FILESIZE_EXCEEDED:
    case CURLE_WRITE_ERROR:
      return fmt::format("il file supera i {} byte che si possono scaricare", limits.bytes);
    case CURLE_PARTIAL_FILE:
    case CURLE_RECV_ERROR:
    case CURLE_SEND_ERROR:
    case CURLE_GOT_NOTHING:
      return "il server ha interrotto il collegamento";
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CONNECT_ERROR:
      return "il collegamento protetto con il server non riesce";
    default:
      return "lo scarico non è riuscito";
  }
}

class CurlTransfer : public Transfer {
 public:
  CurlTransfer(const std::string& address, const TransferLimits& limits) : m_limits(limits) {
    beginLibrary();
    m_multi.reset(curl_multi_init());
    m_easy.reset(curl_easy_init());
    if (!m_multi || !m_easy) throw std::bad_alloc();
    configure(address);
    curl_multi_add_handle(m_multi.get(), m_easy.get());
  }
  ~CurlTransfer() override { curl_multi_remove_handle(m_multi.get(), m_easy.get()); }

  bool advance() override {
    if (m_done) return false;
    int running = 0;
    if (const CURLMcode code = curl_multi_perform(m_multi.get(), &running); code != CURLM_OK)
      throw TransferError("lo scarico non è riuscito", "Avviso", curl_multi_strerror(code));
    int left = 0;
    while (const CURLMsg* const message = curl_multi_info_read(m_multi.get(), &left))
      if (message->msg == CURLMSG_DONE) finish(message->data.result);
    return !m_done;
  }
  const std::string& bytes() const override { return m_bytes; }
  std::size_t announced() const override {
    curl_off_t length = -1;
    curl_easy_getinfo(m_easy.get(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &length);
    return length > 0 ? static_cast<std::size_t>(length) : 0;
  }

 private:
  template <class Value>
  void set(CURLoption option, Value value) {
    if (const CURLcode code = curl_easy_setopt(m_easy.get(), option, value); code != CURLE_OK)
      throw TransferError(reasonOfCode(code, 0, m_limits), "Avviso", curl_easy_strerror(code));
  }

  void configure(const std::string& address) {
    set(CURLOPT_URL, address.c_str());
    set(CURLOPT_DEFAULT_PROTOCOL, "http");
    set(CURLOPT_PROTOCOLS_STR, "http,https,ftp,ftps");
    set(CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    set(CURLOPT_FOLLOWLOCATION, 1L);
    set(CURLOPT_MAXREDIRS, kMostRedirects);
    set(CURLOPT_FAILONERROR, 1L);
    set(CURLOPT_TIMEOUT_MS, static_cast<long>(m_limits.time.count()));
    set(CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(m_limits.bytes));
    set(CURLOPT_NOSIGNAL, 1L);
    set(CURLOPT_NETRC, static_cast<long>(CURL_NETRC_IGNORED));
    set(CURLOPT_USERAGENT, ("TRV5/" + std::string(programVersion())).c_str());
    set(CURLOPT_WRITEFUNCTION, &CurlTransfer::take);
    set(CURLOPT_WRITEDATA, this);
  }

  // A server that told no size, or a wrong one, is stopped here.
  static std::size_t take(const char* piece, std::size_t size, std::size_t count, void* transfer) noexcept {
    auto* const self = static_cast<CurlTransfer*>(transfer);
    const std::size_t length = size * count;
    if (length > self->m_limits.bytes - self->m_bytes.size()) return 0;
    try {
      self->m_bytes.append(piece, length);
    } catch (const std::bad_alloc&) {
      return 0;
    }
    return length;
  }

  void finish(CURLcode code) {
    m_done = true;
    if (code == CURLE_OK) return;
    long status = 0;
    curl_easy_getinfo(m_easy.get(), CURLINFO_RESPONSE_CODE, &status);
    throw TransferError(reasonOfCode(code, status, m_limits), "Avviso", curl_easy_strerror(code));
  }

  TransferLimits m_limits;
  std::string m_bytes;
  bool m_done = false;
  std::unique_ptr<CURLM, EndMulti> m_multi;
  std::unique_ptr<CURL, EndEasy> m_easy;
};

}  // namespace

std::unique_ptr<Transfer> beginTransfer(const std::string& address, const TransferLimits& limits) {
  return std::make_unique<CurlTransfer>(address, limits);
}

}  // namespace trv5
