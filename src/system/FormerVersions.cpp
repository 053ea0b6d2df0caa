#include "system/FormerVersions.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <fstream>
#include <new>
#include <string_view>
#include <vector>

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "system/BaseFolders.h"

namespace hullwright {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostCopies = 5;

// A file's name may have 255 bytes; what is left for the stem beside hash, count, time and ending.
constexpr std::size_t longestStem = 160;
constexpr std::size_t longestEnding = 16;

/// Larger files are no designs, and reading them would hold the save up.
constexpr std::uintmax_t largestFile = 256U << 20U;

/// The bytes of a regular file; nothing for anything else, and where it can't be read whole.
std::optional<std::string> ReadWhole(const fs::path& path)
{
  std::error_code failed;
  if (!fs::is_regular_file(path, failed)) return std::nullopt;
  const std::uintmax_t size = fs::file_size(path, failed);
  std::ifstream file(path, std::ios::binary);
  if (failed || size > largestFile || !file) return std::nullopt;
  try {
    std::string bytes(static_cast<std::size_t>(size), '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(size));
    if (!file) return std::nullopt;
    return bytes;
  } catch (const std::bad_alloc&) {
    return std::nullopt;
  }
}

/// Whether a file holds these bytes. One of another size is not read, and none stands in memory
/// whole.
bool Holds(const fs::path& path, std::string_view bytes)
{
  std::error_code failed;
  if (!fs::is_regular_file(path, failed) || fs::file_size(path, failed) != bytes.size())
    return false;
  std::ifstream file(path, std::ios::binary);
  std::array<char, 1U << 14U> part{};
  while (!bytes.empty()) {
    const std::size_t length = std::min(part.size(), bytes.size());
    file.read(part.data(), static_cast<std::streamsize>(length));
    if (!file || bytes.substr(0, length) != std::string_view(part.data(), length)) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

bool WriteWhole(const fs::path& path, std::string_view bytes)
{
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return file.good();
}

/// The 64-bit FNV-1a hash, the same on every machine.
std::uint64_t HashOf(std::string_view text)
{
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char c : text) {
    hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
  }
  return hash;
}

std::string Hex(std::uint64_t value)
{
  constexpr unsigned half = 32U;
  return FormatHex(static_cast<std::uint32_t>(value >> half), 8) +
         FormatHex(static_cast<std::uint32_t>(value), 8);
}

/// What the names of all copies of a path begin with.
std::string PrefixOf(const fs::path& path)
{
  std::string stem = TextOf(path.stem());
  if (stem.size() > longestStem) {
    std::size_t end = longestStem;
    const auto continues = [&](std::size_t at) {
      return (static_cast<unsigned char>(stem[at]) & 0xC0U) == 0x80U;
    };
    while (end > 0 && continues(end)) --end;
    stem.resize(end);
  }
  return stem + '.' + Hex(HashOf(TextOf(path))) + '.';
}

/// A number with leading zeros.
std::string Digits(std::int64_t number, std::size_t width)
{
  const std::string text = std::to_string(number);
  return std::string(width - std::min(width, text.size()), '0') + text;
}

std::string TimeStamp(std::chrono::system_clock::time_point now)
{
  const auto day = std::chrono::floor<std::chrono::days>(now);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss time(std::chrono::floor<std::chrono::milliseconds>(now) - day);
  return Digits(static_cast<int>(date.year()), 4) + '-' +
         Digits(static_cast<unsigned>(date.month()), 2) + '-' +
         Digits(static_cast<unsigned>(date.day()), 2) + 'T' + Digits(time.hours().count(), 2) +
         '-' + Digits(time.minutes().count(), 2) + '-' + Digits(time.seconds().count(), 2) + '.' +
         Digits(time.subseconds().count(), 3) + 'Z';
}

/// The copies with a prefix, the oldest first.
std::vector<fs::path> CopiesOf(const fs::path& folder, const std::string& prefix)
{
  std::vector<fs::path> copies;
  std::error_code failed;
  for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end;
       entry.increment(failed)) {
    if (TextOf(entry->path().filename()).starts_with(prefix)) copies.push_back(entry->path());
  }
  std::ranges::sort(copies);
  return copies;
}

/// The count of the copy behind the newest one, as six digits.
std::string NextCount(const std::vector<fs::path>& copies, const std::string& prefix)
{
  constexpr std::uint32_t million = 1000000;
  std::uint32_t count = 0;
  if (!copies.empty()) {
    const std::string newest = TextOf(copies.back().filename());
    count = ParseUInt32(std::string_view(newest).substr(prefix.size()), 10);
  }
  return Digits((count + 1) % million, 6);
}

}  // namespace

std::u16string FormerVersions::Keep(std::u16string_view path)
{
  std::error_code failed;
  fs::path file = PathOf(path);
  const fs::path real = fs::canonical(file, failed);
  if (!failed) file = real;
  if (!isDamaged_ || file != file_) {
    file_ = file;
    wasAbsent_ = !fs::exists(file, failed) && !failed;
    isDamaged_ = false;
    bytes_ = ReadWhole(file);
    copy_ = bytes_ && !folder_.empty() ? WriteCopy() : fs::path();
  }
  return WideFromUtf8(TextOf(copy_));
}

fs::path FormerVersions::WriteCopy() const
{
  std::error_code failed;
  fs::create_directories(folder_, failed);
  fs::permissions(folder_, fs::perms::owner_all, failed);
  const std::string prefix = PrefixOf(file_);
  std::vector<fs::path> copies = CopiesOf(folder_, prefix);
  // Saving again without a change must not push the older versions out.
  if (!copies.empty() && Holds(copies.back(), *bytes_)) return copies.back();

  std::string ending = TextOf(file_.extension());
  if (ending.size() > longestEnding) ending.clear();
  fs::path copy = folder_ / PathOf(prefix + NextCount(copies, prefix) + '.' +
                                   TimeStamp(std::chrono::system_clock::now()) + ending);
  if (!WriteWhole(copy, *bytes_)) {
    fs::remove(copy, failed);
    return {};
  }
  copies.push_back(copy);
  for (std::size_t i = 0; i + mostCopies < copies.size(); ++i) fs::remove(copies[i], failed);
  return copy;
}

void FormerVersions::Release()
{
  bytes_.reset();
  isDamaged_ = false;
}

Restored FormerVersions::PutBack()
{
  std::error_code failed;
  if (wasAbsent_) {
    if (fs::is_regular_file(file_, failed)) fs::remove(file_, failed);
    return fs::exists(file_, failed) ? Restored::Damaged : Restored::Nothing;
  }
  if (!bytes_) return Restored::Unknown;
  isDamaged_ = !Holds(file_, *bytes_) && !WriteWhole(file_, *bytes_);
  return isDamaged_ ? Restored::Damaged : Restored::AsBefore;
}

fs::path StateFolder()
{
  const fs::path folder = BaseFolder("XDG_STATE_HOME", ".local/state");
  return folder.empty() ? folder : folder / "hullwright";
}

}  // namespace hullwright
