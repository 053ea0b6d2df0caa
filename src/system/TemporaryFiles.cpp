#include "system/TemporaryFiles.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "system/Descriptors.h"

namespace hullwright {
namespace {

constexpr auto endingSignals = std::to_array({SIGHUP, SIGINT, SIGQUIT, SIGPIPE, SIGTERM, SIGXCPU});

/// A path that a signal handler may read: no memory is asked for, and none is given back. Empty
/// where it stands for no file.
using Place = std::array<char, PATH_MAX>;

// One run has an input or two and at most the pictures of six sides. A file beyond these, or with a
// longer path, is not removed by a signal.
std::array<Place, 16> places;

/// Keeps the signals that end the program away for as long as it lives.
class SignalsHeld {
public:
  SignalsHeld()
  {
    sigset_t ending;
    sigemptyset(&ending);
    for (const int signal : endingSignals) sigaddset(&ending, signal);
    sigprocmask(SIG_BLOCK, &ending, &before_);
  }
  SignalsHeld(const SignalsHeld&) = delete;
  SignalsHeld& operator=(const SignalsHeld&) = delete;
  ~SignalsHeld() { sigprocmask(SIG_SETMASK, &before_, nullptr); }

private:
  sigset_t before_{};
};

void Remember(std::string_view path)
{
  const auto free = std::ranges::find(places, '\0', [](const Place& place) { return place[0]; });
  if (free != places.end() && path.size() < free->size()) std::ranges::copy(path, free->begin());
}

void Forget(std::string_view path)
{
  for (Place& place : places) {
    if (std::string_view(place.data()) == path) place.fill('\0');
  }
}

extern "C" void RemoveAndEnd(int signal)
{
  for (const Place& place : places) {
    if (place[0] != '\0') unlink(place.data());
  }
  raise(signal);  // what it does by itself, as soon as this returns
}

}  // namespace

std::string MakeTemporary(const std::filesystem::path& folder)
{
  std::string path = (folder / ".hullwright-XXXXXX").string();
  const SignalsHeld held;
  const Descriptor file(mkstemp(path.data()));
  if (file.Number() < 0) return {};
  Remember(path);
  // As a file made in the usual way would be, not for its owner alone.
  const mode_t mask = umask(0);
  umask(mask);
  fchmod(file.Number(), 0666 & ~mask);
  return path;
}

void RemoveTemporary(const std::string& path)
{
  if (path.empty()) return;
  const SignalsHeld held;
  unlink(path.c_str());
  Forget(path);
}

bool KeepTemporary(const std::string& path, const std::string& name)
{
  const SignalsHeld held;
  if (rename(path.c_str(), name.c_str()) != 0) return false;
  Forget(path);
  return true;
}

std::filesystem::path TemporaryFolder()
{
  std::error_code failed;
  const std::filesystem::path folder = std::filesystem::temp_directory_path(failed);
  return failed ? std::filesystem::path("/tmp") : folder;
}

void RemoveTemporaryFilesAtSignals()
{
  struct sigaction action {};
  action.sa_handler = RemoveAndEnd;
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  for (const int signal : endingSignals) sigaddset(&action.sa_mask, signal);
  for (const int signal : endingSignals) {
    struct sigaction before {};
    if (sigaction(signal, nullptr, &before) == 0 && before.sa_handler == SIG_DFL) {
      sigaction(signal, &action, nullptr);
    }
  }
}

}  // namespace hullwright
