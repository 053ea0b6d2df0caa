#include <dlfcn.h>
#include <sys/resource.h>

#include <QBackingStore>
#include <QImage>
#include <QRegion>
#include <QWindow>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

/// A library that is preloaded into a Qt program and reports what its first frame has cost: it
/// stands between the window and the toolkit where a painted frame goes to the display. The report
/// is one line in the file that HULLWRIGHT_FIRST_FRAME names: microseconds of CPU, peak memory in
/// kilobytes, and how many pixels of the frame have the colour of the design view's paper.
namespace {

long Microseconds(const timeval& time) { return time.tv_sec * 1000000L + time.tv_usec; }

/// A line of the process's own status, in kilobytes.
long StatusOf(const char* name)
{
  long value = 0;
  char line[256];
  std::FILE* const status = std::fopen("/proc/self/status", "r");
  while (status != nullptr && std::fgets(line, sizeof line, status) != nullptr) {
    const std::size_t length = std::strlen(name);
    if (std::strncmp(line, name, length) == 0) value = std::strtol(line + length, nullptr, 10);
  }
  if (status != nullptr) std::fclose(status);
  return value;
}

long PaperPixels(QPaintDevice* device)
{
  if (device == nullptr || device->devType() != QInternal::Image) return 0;
  const QImage& frame = *static_cast<QImage*>(device);
  if (frame.depth() != 32) return 0;
  constexpr QRgb paper = qRgb(255, 255, 224);
  long count = 0;
  for (int y = 0; y < frame.height(); ++y) {
    const auto* const line = reinterpret_cast<const QRgb*>(frame.constScanLine(y));
    count += std::count(line, line + frame.width(), paper);
  }
  return count;
}

void Report(QPaintDevice* device)
{
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  const long cpu = Microseconds(used.ru_utime) + Microseconds(used.ru_stime);
  const long peak = StatusOf("VmHWM:");
  const char* const path = std::getenv("HULLWRIGHT_FIRST_FRAME");
  std::FILE* const report = path == nullptr ? nullptr : std::fopen(path, "w");
  if (report == nullptr) return;
  std::fprintf(report, "%ld %ld %ld\n", cpu, peak, PaperPixels(device));
  std::fclose(report);
}

}  // namespace

void QBackingStore::flush(const QRegion& region, QWindow* window, const QPoint& offset)
{
  using Flush = void (*)(QBackingStore*, const QRegion&, QWindow*, const QPoint&);
  static const auto toolkit = reinterpret_cast<Flush>(
      dlsym(RTLD_NEXT, "_ZN13QBackingStore5flushERK7QRegionP7QWindowRK6QPoint"));
  toolkit(this, region, window, offset);
  static bool reported = false;
  if (reported) return;
  reported = true;
  Report(paintDevice());
}
