#include "support/System.h"

#include <io.h>
#include <malloc.h>
#include <windows.h>
// Needs the types of the header above.
#include <psapi.h>

#include <cstdlib>

namespace hullwright::test {

int ProcessNumber() { return static_cast<int>(GetCurrentProcessId()); }

void SetVariable(const char* name, const char* value)
{
  _putenv_s(name, value == nullptr ? "" : value);
}

bool MakePipe(const std::filesystem::path&) { return false; }

void* AllocateAligned(std::size_t size, std::size_t alignment)
{
  return _aligned_malloc(size == 0 ? alignment : size, alignment);
}

void FreeAligned(void* place) { _aligned_free(place); }

// Aligned blocks stand at the end of others, whose beginning is not known.
std::size_t BytesOf(void*) { return 0; }

bool MayRead(const std::filesystem::path& path)
{
  constexpr int toRead = 4;
  return _waccess(path.c_str(), toRead) == 0;
}

long MostMemory()
{
  PROCESS_MEMORY_COUNTERS counters{};
  K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
  return static_cast<long>(counters.PeakWorkingSetSize >> 10U);
}

// There is no such limit here; the tests that set one are left out.
FileSizeLimit::FileSizeLimit(std::uint64_t) {}
FileSizeLimit::~FileSizeLimit() = default;

}  // namespace hullwright::test
