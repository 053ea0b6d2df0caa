// Stands in for the C library's writing: once a file has its first bytes, the user ends the
// program.
#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

extern "C" ssize_t write(int file, const void* bytes, std::size_t count)
{
  using Write = ssize_t (*)(int, const void*, std::size_t);
  static const auto write = reinterpret_cast<Write>(dlsym(RTLD_NEXT, "write"));
  const ssize_t written = write(file, bytes, count);
  struct stat status {};
  if (fstat(file, &status) == 0 && S_ISREG(status.st_mode)) raise(SIGTERM);
  return written;
}
