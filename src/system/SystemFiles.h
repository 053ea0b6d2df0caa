#pragma once

#include <cstddef>
#include <string>

/// The system's calls on open files, which are known by numbers; bytes go through them as they are.
namespace hullwright {

inline constexpr int standardInput = 0;
inline constexpr int standardOutput = 1;

/// What a file is opened for.
enum class Access {
  Read,         ///< a file that is there
  Write,        ///< into a file that is there, from its beginning
  MakeOrWrite,  ///< the same, made where there is none; a pipe that nobody reads is not waited for
};

/// Opens a file; negative with `errno` where that fails.
int OpenDescriptor(const std::string& path, Access access);

void CloseDescriptor(int file);

/// Reads or writes some bytes: their number, 0 at the end of the file, negative with `errno` where
/// that fails.
std::ptrdiff_t ReadSome(int file, char* bytes, std::size_t size);
std::ptrdiff_t WriteSome(int file, const char* bytes, std::size_t size);

/// Locks a file until it is closed, unless another program has it locked, and then true. File
/// systems without locks know of none.
bool IsLockedElsewhere(int file);

/// Takes all that it holds out of a file; what can't be cut, such as a pipe, holds nothing. False
/// with `errno` where that fails.
bool EmptyFile(int file);

/// The `errno` for a file that this user may not write; 0 where he may.
int WritingProblem(const std::string& path);

}  // namespace hullwright
