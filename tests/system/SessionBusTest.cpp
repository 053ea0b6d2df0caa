#include "system/SessionBus.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <optional>
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

  /// Takes one caller in and hangs up without an answer.
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
  SessionBus() { unsetenv(variable); }
  ~SessionBus() override
  {
    Restore(variable, address_);
    Restore(runtime, runtime_);
  }
  std::string Address() const { return "unix:path=" + path; }

  static constexpr const char* variable = "DBUS_SESSION_BUS_ADDRESS";
  static constexpr const char* runtime = "XDG_RUNTIME_DIR";
  test::TempFolder folder;
  std::string path = (folder.Path() / "bus").string();

private:
  static std::optional<std::string> Now(const char* name)
  {
    const char* const value = std::getenv(name);
    return value == nullptr ? std::nullopt : std::optional<std::string>(value);
  }
  static void Restore(const char* name, const std::optional<std::string>& value)
  {
    value ? setenv(name, value->c_str(), 1) : unsetenv(name);
  }

  std::optional<std::string> address_ = Now(variable);
  std::optional<std::string> runtime_ = Now(runtime);
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
  EXPECT_FALSE(BusAnswers("unix:abstract=" + name + ",guid=12", patience));
}

TEST_F(SessionBus, EscapesOfAnAddressAreUndone)
{
  const Listener bus(path);
  EXPECT_FALSE(BusAnswers("unix:path=" + (folder.Path() / "%62us").string(), patience));
}

TEST_F(SessionBus, NoBusAndAddressesOfOtherKindsAreLeftToTheToolkit)
{
  EXPECT_TRUE(BusAnswers(Address(), patience));
  EXPECT_TRUE(BusAnswers("", patience));
  EXPECT_TRUE(BusAnswers("disabled:", patience));
  EXPECT_TRUE(BusAnswers("tcp:host=localhost,port=1", patience));
  EXPECT_TRUE(BusAnswers("unix:path=/" + std::string(200, 'x'), patience));
}

TEST_F(SessionBus, TheAddressIsTheNamedOneElseTheSocketInTheRuntimeFolder)
{
  unsetenv(runtime);
  EXPECT_EQ(SessionBusAddress(), "");
  setenv(runtime, folder.Path().c_str(), 1);
  EXPECT_EQ(SessionBusAddress(), "");
  const Listener bus(path);
  EXPECT_EQ(SessionBusAddress(), Address());
  setenv(variable, "tcp:host=elsewhere", 1);
  EXPECT_EQ(SessionBusAddress(), "tcp:host=elsewhere");
}

TEST_F(SessionBus, BytesOfTheRuntimeFolderThatNoAddressMayHaveAreEscaped)
{
  const std::filesystem::path odd = folder.Path() / "a b;c,d%e\xC3\xBC~";
  std::filesystem::create_directories(odd);
  setenv(runtime, odd.c_str(), 1);
  path = (odd / "bus").string();
  const Listener bus(path);
  const std::string address = SessionBusAddress();
  EXPECT_TRUE(address.ends_with("/a%20b%3Bc%2Cd%25e%C3%BC~/bus")) << address;
  EXPECT_FALSE(BusAnswers(address, patience));
}

TEST_F(SessionBus, ASilentBusIsSwitchedOffForThisRunAndAnyOtherStaysNamed)
{
  const std::string elsewhere = "unix:path=/nowhere/bus";
  setenv(variable, elsewhere.c_str(), 1);
  LeaveSilentSessionBus(patience);
  EXPECT_EQ(std::getenv(variable), elsewhere);
  const Listener bus(path);
  setenv(variable, Address().c_str(), 1);
  testing::internal::CaptureStderr();
  LeaveSilentSessionBus(patience);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "hullwright: the session bus does not answer; going on without it\n");
  EXPECT_STREQ(std::getenv(variable), "disabled:");
}

}  // namespace
}  // namespace hullwright
