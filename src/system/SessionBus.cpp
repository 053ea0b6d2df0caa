#include "system/SessionBus.h"

#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "base/Numbers.h"
#include "system/BaseFolders.h"

namespace hullwright {
namespace {

constexpr const char* variable = "DBUS_SESSION_BUS_ADDRESS";

/// Splits a text; a text without the mark is one part.
std::vector<std::string_view> Split(std::string_view text, char mark)
{
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t end = std::min(text.find(mark), text.size());
    parts.push_back(text.substr(0, end));
    if (end == text.size()) return parts;
    text.remove_prefix(end + 1);
  }
}

/// The value of a hexadecimal digit; -1 for anything else.
int DigitOf(char c)
{
  constexpr std::string_view digits = "0123456789abcdef0123456789ABCDEF";
  const std::size_t found = digits.find(c);
  return found == std::string_view::npos ? -1 : static_cast<int>(found % 16);
}

/// A text whose escapes, "%" and two digits, are undone.
std::string Unescaped(std::string_view text)
{
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const int high = text[i] == '%' && i + 2 < text.size() ? DigitOf(text[i + 1]) : -1;
    const int low = high < 0 ? -1 : DigitOf(text[i + 2]);
    out.push_back(low < 0 ? text[i] : static_cast<char>(high * 16 + low));
    if (low >= 0) i += 2;
  }
  return out;
}

/// A path with all bytes escaped that may not stand in an address.
std::string Escaped(std::string_view path)
{
  constexpr std::string_view plain =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
  std::string out;
  for (const char c : path) {
    if (plain.find(c) != std::string_view::npos) {
      out.push_back(c);
    } else {
      out += '%' + FormatHex(static_cast<unsigned char>(c), 2);
    }
  }
  return out;
}

/// The name of a local socket as the system calls want it: names in the abstract begin with a zero.
std::optional<std::string> SocketName(std::string_view address)
{
  constexpr std::string_view local = "unix:";
  // Of several addresses the library takes the first that works.
  const std::string_view first = Split(address, ';').front();
  if (!first.starts_with(local)) return std::nullopt;
  for (const std::string_view pair : Split(first.substr(local.size()), ',')) {
    const std::string value = Unescaped(pair.substr(pair.find('=') + 1));
    if (pair.starts_with("path=")) return value + '\0';
    if (pair.starts_with("abstract=")) return '\0' + value;
  }
  return std::nullopt;
}

/// The greeting of a client: a zero, then the user's number as the hexadecimal form of its digits.
std::string Greeting()
{
  std::string greeting = std::string(1, '\0') + "AUTH EXTERNAL ";
  for (const char digit : std::to_string(geteuid())) {
    greeting += FormatHex(static_cast<unsigned char>(digit), 2);
  }
  return greeting + "\r\n";
}

/// A connection that is closed in the end.
class Connection {
public:
  explicit Connection(std::chrono::milliseconds patience)
      : socket_(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
  {
    const std::chrono::seconds seconds = std::chrono::floor<std::chrono::seconds>(patience);
    const std::chrono::microseconds rest = patience - seconds;
    const timeval limit{seconds.count(), rest.count()};
    for (const int direction : {SO_SNDTIMEO, SO_RCVTIMEO})
      setsockopt(socket_, SOL_SOCKET, direction, &limit, sizeof limit);
  }
  ~Connection()
  {
    if (socket_ >= 0) close(socket_);
  }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  /// Greets as a client of a bus does. Each step fails with this error when its time is up.
  bool TimesOut(const sockaddr_un& place, std::size_t length) const
  {
    if (connect(socket_, reinterpret_cast<const sockaddr*>(&place), socklen_t(length)) != 0)
      return errno == EAGAIN;
    const std::string greeting = Greeting();
    if (send(socket_, greeting.data(), greeting.size(), MSG_NOSIGNAL) < 0) return errno == EAGAIN;
    char answer = 0;
    return recv(socket_, &answer, 1, 0) < 0 && errno == EAGAIN;
  }

private:
  int socket_;
};

}  // namespace

std::string SessionBusAddress()
{
  std::string named = Environment(variable, "");
  if (!named.empty()) return named;
  const std::string folder = Environment("XDG_RUNTIME_DIR", "");
  std::error_code failed;
  if (folder.empty() || !std::filesystem::exists(folder + "/bus", failed)) return {};
  return "unix:path=" + Escaped(folder + "/bus");
}

bool BusAnswers(const std::string& address, std::chrono::milliseconds patience)
{
  const std::optional<std::string> name = SocketName(address);
  sockaddr_un place{};
  place.sun_family = AF_UNIX;
  if (!name || name->size() > sizeof place.sun_path) return true;
  std::copy(name->begin(), name->end(), place.sun_path);
  return !Connection(patience).TimesOut(place, offsetof(sockaddr_un, sun_path) + name->size());
}

void LeaveSilentSessionBus(std::chrono::milliseconds patience)
{
  if (BusAnswers(SessionBusAddress(), patience)) return;
  std::fprintf(stderr, "hullwright: the session bus does not answer; going on without it\n");
  setenv(variable, "disabled:", 1);
}

}  // namespace hullwright
