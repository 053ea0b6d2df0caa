#include "support/System.h"

#include <malloc.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace hullwright::test {
namespace {

void LimitFileSize(std::uint64_t bytes)
{
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  limit.rlim_cur = bytes;
  setrlimit(RLIMIT_FSIZE, &limit);
}

}  // namespace

int ProcessNumber() { return getpid(); }

void SetVariable(const char* name, const char* value)
{
  if (value == nullptr) {
    unsetenv(name);
  } else {
    setenv(name, value, 1);
  }
}

bool MakePipe(const std::filesystem::path& path) { return mkfifo(path.c_str(), 0600) == 0; }

void* AllocateAligned(std::size_t size, std::size_t alignment)
{
  const std::size_t whole = (size + alignment - 1) / alignment * alignment;
  return std::aligned_alloc(alignment, whole == 0 ? alignment : whole);
}

void FreeAligned(void* place) { std::free(place); }

std::size_t BytesOf(void* block) { return malloc_usable_size(block); }

bool MayRead(const std::filesystem::path& path) { return access(path.c_str(), R_OK) == 0; }

long MostMemory()
{
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

FileSizeLimit::FileSizeLimit(std::uint64_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN))
{
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  before_ = limit.rlim_cur;
  LimitFileSize(bytes);
}

FileSizeLimit::~FileSizeLimit()
{
  LimitFileSize(before_);
  std::signal(SIGXFSZ, handler_);
}

}  // namespace hullwright::test
