#pragma once

#include <string_view>

#include "file/FileSax.h"

namespace hullwright {

/// Passes what the parser delivers on to a file object, filtered. Without an owner nothing happens.
class CFileSaxContentHandler {
public:
  explicit CFileSaxContentHandler(CFileSax* owner) : owner_(owner) {}

  /// `localName` bears no prefix.
  void StartElement(std::string_view localName, SaxAttributes attributes);
  void EndElement(std::string_view localName);

  /// Drops a chunk that is empty, all blanks (tabs don't count), or starts with LF or CR, whatever
  /// follows there. Any other chunk is one call, nothing is gathered.
  void Characters(std::string_view chunk);

  /// As the owner's.
  bool GoOnWithout(std::string_view startedElement) noexcept;

  /// A comment or a processing instruction, with its marks.
  void PassOver(std::string_view markup);

private:
  CFileSax* owner_;
};

/// Passes the parser's errors on to a file object.
class CFileSaxErrorHandler {
public:
  explicit CFileSaxErrorHandler(CFileSax* owner) : owner_(owner) {}

  /// Line and column count from 1; 0 where they are not known.
  void Error(std::u16string_view message, int line, int column, int code);

  /// The last error that was passed on.
  const ReadError& Last() const { return last_; }

private:
  CFileSax* owner_;
  ReadError last_;
};

}  // namespace hullwright
