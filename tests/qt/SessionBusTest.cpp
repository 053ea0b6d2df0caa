#include "qt/SessionBus.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QByteArray>
#include <algorithm>
#include <array>
#include <chrono>
#include <string>
#include <thread>

#include "support/TempFolder.h"

namespace hullwright {
namespace {

using namespace std::chrono_literals;

constexpr auto patience = 200ms;

/// A socket that listens where a bus would, and takes nobody in by itself.
class Listener {
public:
  /// A name that begins with a zero is one in the abstract.
  explicit Listener(const std::string& name, int queue = 8)
      : socket_(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
  {
    place_.sun_family = AF_UNIX;
    if (name.size() > sizeof place_.sun_path) {
      ADD_FAILURE() << name << " is too long for a socket";
      return;
    }
    std::copy(name.begin(), name.end(), place_.sun_path);
    length_ = socklen_t(sizeof place_ - sizeof place_.sun_path + name.size());
    EXPECT_EQ(bind(socket_, Place(), length_), 0);
    EXPECT_EQ(listen(socket_, queue), 0);
  }
  ~Listener()
  {
    for (const int caller : callers_)
      if (caller > 0) close(caller);
    close(socket_);
  }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  /// Takes one caller in, reads its greeting and answers.
  std::string Answer(const std::string& answer) const
  {
    const int caller = accept(socket_, nullptr, nullptr);
    std::string greeting(64, '\0');
    greeting.resize(std::size_t(std::max<ssize_t>(0, recv(caller, greeting.data(), 64, 0))));
    EXPECT_EQ(send(caller, answer.data(), answer.size(), MSG_NOSIGNAL), ssize_t(answer.size()));
    close(caller);
    return greeting;
  }

  /// Takes one caller in and hangs up without a word.
  void HangUp() const { close(accept(socket_, nullptr, nullptr)); }

  /// Calls until the queue is full.
  void Fill()
  {
    for (int& caller : callers_) {
      caller = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
      if (connect(caller, Place(), length_) != 0) return;  // full
    }
    ADD_FAILURE() << "the queue takes any number";
  }

private:
  const sockaddr* Place() const { return reinterpret_cast<const sockaddr*>(&place_); }

  int socket_;
  sockaddr_un place_{};
  socklen_t length_ = 0;
  std::array<int, 8> callers_{};
};

class SessionBus : public testing::Test {
protected:
  SessionBus() { qunsetenv("DBUS_SESSION_BUS_ADDRESS"); }
  ~SessionBus() override
  {
    address_.isNull() ? qunsetenv("DBUS_SESSION_BUS_ADDRESS")
                      : qputenv("DBUS_SESSION_BUS_ADDRESS", address_);
    runtime_.isNull() ? qunsetenv("XDG_RUNTIME_DIR") : qputenv("XDG_RUNTIME_DIR", runtime_);
  }
  QByteArray Address() const { return QByteArray::fromStdString("unix:path=" + path); }

  test::TempFolder folder;
  std::string path = (folder.Path() / "bus").string();

private:
  QByteArray address_ = qgetenv("DBUS_SESSION_BUS_ADDRESS");
  QByteArray runtime_ = qgetenv("XDG_RUNTIME_DIR");
};

TEST_F(SessionBus, ABusThatNeverAnswersIsFoundOutWhenItsTimeIsUp)
{
  const Listener bus(path);
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_FALSE(BusAnswers(Address(), patience));
  EXPECT_GE(std::chrono::steady_clock::now() - begin, patience - 10ms);
}

TEST_F(SessionBus, ABusThatAnswersTheGreetingIsKept)
{
  const Listener bus(path);
  std::string greeting;
  std::thread other([&] { greeting = bus.Answer("OK 1234deadbeef\r\n"); });
  EXPECT_TRUE(BusAnswers(Address(), 60s));
  other.join();
  EXPECT_EQ(greeting.substr(0, 15), std::string("\0AUTH EXTERNAL ", 15));
  EXPECT_EQ(greeting.substr(greeting.size() - 2), "\r\n");
}

TEST_F(SessionBus, ABusThatRefusesIsLeftToTheToolkit)
{
  const Listener bus(path);
  std::thread other([&] { bus.Answer("REJECTED\r\n"); });
  EXPECT_TRUE(BusAnswers(Address(), 60s));
  other.join();
}

TEST_F(SessionBus, ABusThatHangsUpIsLeftToTheToolkit)
{
  const Listener bus(path);
  std::thread other([&] { bus.HangUp(); });
  EXPECT_TRUE(BusAnswers(Address(), 60s));
  other.join();
}

TEST_F(SessionBus, ABusWithAFullQueueOfCallersIsFoundOut)
{
  Listener bus(path, 1);
  bus.Fill();
  EXPECT_FALSE(BusAnswers(Address(), patience));
}

TEST_F(SessionBus, ASilentBusInTheAbstractIsFoundOut)
{
  const std::string name = "hullwright-test-" + std::to_string(getpid());
  const Listener bus('\0' + name);
  EXPECT_FALSE(
      BusAnswers(QByteArray::fromStdString("unix:abstract=" + name + ",guid=12"), patience));
}

TEST_F(SessionBus, EscapesOfAnAddressAreUndone)
{
  const Listener bus(path);
  QByteArray address = Address();
  address.replace(QByteArray("/bus"), QByteArray("/%62us"));
  EXPECT_FALSE(BusAnswers(address, patience));
}

TEST_F(SessionBus, NoBusAndAddressesOfOtherKindsAreLeftToTheToolkit)
{
  EXPECT_TRUE(BusAnswers(Address(), patience));
  EXPECT_TRUE(BusAnswers("", patience));
  EXPECT_TRUE(BusAnswers("disabled:", patience));
  EXPECT_TRUE(BusAnswers("tcp:host=localhost,port=1", patience));
  EXPECT_TRUE(BusAnswers("unix:path=/" + QByteArray(200, 'x'), patience));
}

TEST_F(SessionBus, TheAddressIsTheNamedOneElseTheSocketInTheRuntimeFolder)
{
  qunsetenv("XDG_RUNTIME_DIR");
  EXPECT_EQ(SessionBusAddress(), "");
  qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(folder.Path().string()));
  EXPECT_EQ(SessionBusAddress(), "");
  const Listener bus(path);
  EXPECT_EQ(SessionBusAddress(), Address());
  qputenv("DBUS_SESSION_BUS_ADDRESS", "tcp:host=elsewhere");
  EXPECT_EQ(SessionBusAddress(), "tcp:host=elsewhere");
}

TEST_F(SessionBus, ASilentBusIsSwitchedOffForThisRunAndAnyOtherStaysNamed)
{
  const QByteArray elsewhere = "unix:path=/nowhere/bus";
  qputenv("DBUS_SESSION_BUS_ADDRESS", elsewhere);
  LeaveSilentSessionBus(patience);
  EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), elsewhere);
  const Listener bus(path);
  qputenv("DBUS_SESSION_BUS_ADDRESS", Address());
  LeaveSilentSessionBus(patience);
  EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), "disabled:");
}

}  // namespace
}  // namespace hullwright
