#include "base/ErrorText.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace hullwright {
namespace {

struct KnownError {
  int number;
  const char* text;
};

// The words of other systems: those of the C library differ from version to version here.
constexpr auto knownErrors = std::to_array<KnownError>({
    {EPERM, "Operation not permitted"},
    {ENOENT, "No such file or directory"},
    {EIO, "Input/output error"},
    {EBADF, "Bad file descriptor"},
    {ENOMEM, "Cannot allocate memory"},
    {EACCES, "Permission denied"},
    {EBUSY, "Device or resource busy"},
    {EEXIST, "File exists"},
    {ENOTDIR, "Not a directory"},
    {EISDIR, "Is a directory"},
    {EINVAL, "Invalid argument"},
    {EMFILE, "Too many open files"},
    {EFBIG, "File too large"},
    {ENOSPC, "No space left on device"},
    {EROFS, "Read-only file system"},
    {EPIPE, "Broken pipe"},
    {ENAMETOOLONG, "File name too long"},
});

}  // namespace

std::string ErrorText(int error)
{
  const auto* const known = std::ranges::find(knownErrors, error, &KnownError::number);
  return known == knownErrors.end() ? "Error " + std::to_string(error) : std::string(known->text);
}

}  // namespace hullwright
