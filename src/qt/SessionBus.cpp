#include "qt/SessionBus.h"

#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <optional>

namespace hullwright {
namespace {

constexpr const char* variable = "DBUS_SESSION_BUS_ADDRESS";

/// The name of a local socket as the system calls want it: names in the abstract begin with a zero.
std::optional<QByteArray> SocketName(const QByteArray& address)
{
  // Of several addresses the library takes the first that works.
  const QByteArray first = address.split(';').first();
  if (!first.startsWith("unix:")) return std::nullopt;
  for (const QByteArray& pair : first.mid(5).split(',')) {
    const QByteArray value = QByteArray::fromPercentEncoding(pair.mid(pair.indexOf('=') + 1));
    if (pair.startsWith("path=")) return value + '\0';
    if (pair.startsWith("abstract=")) return '\0' + value;
  }
  return std::nullopt;
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
    const QByteArray greeting =
        '\0' + ("AUTH EXTERNAL " + QByteArray::number(geteuid()).toHex() + "\r\n");
    if (send(socket_, greeting.constData(), std::size_t(greeting.size()), MSG_NOSIGNAL) < 0)
      return errno == EAGAIN;
    char answer = 0;
    return recv(socket_, &answer, 1, 0) < 0 && errno == EAGAIN;
  }

private:
  int socket_;
};

}  // namespace

QByteArray SessionBusAddress()
{
  QByteArray named = qgetenv(variable);
  if (!named.isEmpty()) return named;
  const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
  if (folder.isEmpty() || !QFile::exists(QFile::decodeName(folder + "/bus"))) return {};
  return "unix:path=" + (folder + "/bus").toPercentEncoding("/");
}

bool BusAnswers(const QByteArray& address, std::chrono::milliseconds patience)
{
  const std::optional<QByteArray> name = SocketName(address);
  sockaddr_un place{};
  place.sun_family = AF_UNIX;
  if (!name || std::size_t(name->size()) > sizeof place.sun_path) return true;
  std::copy(name->begin(), name->end(), place.sun_path);
  return !Connection(patience).TimesOut(
      place, offsetof(sockaddr_un, sun_path) + std::size_t(name->size()));
}

void LeaveSilentSessionBus(std::chrono::milliseconds patience)
{
  if (BusAnswers(SessionBusAddress(), patience)) return;
  std::fprintf(stderr, "hullwright: the session bus does not answer; going on without it\n");
  qputenv(variable, "disabled:");
}

}  // namespace hullwright
