#pragma once

#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "file/SaxAttributes.h"
#include "platform/MessageBoxes.h"

namespace hullwright {

/// Attributes to write, ascending by name.
using AttributeMap = std::map<std::u16string, std::u16string>;

/// Why and where a file could not be read.
struct ReadError {
  std::u16string message;  ///< empty while no file has failed
  int line = 0;            ///< from 1; 0 where the disk or the memory is to blame, not the document
  int column = 0;          ///< from 1; 0 where the place is not known
  bool outOfMemory = false;
};

/// The place and the reason as "line 3, column 7: mismatched tag".
std::u16string Describe(const ReadError& error);

/// The place and the reason as "3:7: mismatched tag".
std::u16string DescribeBriefly(const ReadError& error);

/// Base of the XML files. Reading pushes the file's elements and texts through the callbacks;
/// writing composes a document in a growing block that goes to the disk in one piece.
class CFileSax {
public:
  /// `messages` shows that a block could not be written.
  explicit CFileSax(IMessageBoxes& messages) : messages_(messages) {}
  CFileSax(const CFileSax&) = delete;
  CFileSax& operator=(const CFileSax&) = delete;
  virtual ~CFileSax();

  // Callbacks of reading, with names and texts in UTF-8; the base forms do nothing.
  virtual void StartElement(std::string_view name, SaxAttributes attributes);
  virtual void EndElement(std::string_view name);
  virtual void Characters(std::string_view text);
  virtual void Error(std::u16string_view message, int line, int column, int code);

  /// What no other callback gets to see: a comment or a processing instruction with its marks, or a
  /// chunk of text that the handler drops.
  virtual void PassOver(std::string_view markup);

  /// Called where memory has ended in a callback, which was left. Whether to read on without what
  /// it was about: the start of the element that is named, or, without a name, anything else. The
  /// base form ends the reading as a failure.
  virtual bool GoOnWithout(std::string_view startedElement) noexcept;

  /// Parses a file; every callback runs inside. 0, or -1 for a file that can't be read or is not
  /// well-formed XML. A document type declaration counts as not well-formed: no entity expands and
  /// nothing outside the file is read.
  int Read(std::u16string_view path);

  /// What was wrong with the file that `Read` failed on.
  const ReadError& LastReadError() const { return readError_; }

  /// Starts a document with an empty block.
  void ResetOutput();

  // Writing primitives: each makes room, writes `indent` blanks, then its text. When there is no
  // memory for the room, it writes nothing and leaves `indent` alone.
  void WriteDeclaration();
  void OpenElement(std::string_view name);
  void OpenElement(std::string_view name, const AttributeMap& attributes);
  void CloseElement(std::string_view name);
  void WriteTextElement(std::string_view name, std::u16string_view value);
  void WriteEmptyElement(std::string_view name, const AttributeMap& attributes,
                         std::u16string_view body = {});

  /// Writes the block to a file, replacing it. 0 on success. -1 without a message when there is
  /// nothing to write or the file won't open, and with a message when the writing fails.
  int Flush(std::u16string_view path);

  /// The `errno` of the last `Flush` that failed; 0 for one that had nothing to write.
  int WriteError() const { return writeError_; }

  /// Text so far.
  std::string_view Output() const;

  /// Whether memory ended once since the document was started: its text has a hole then, and must
  /// not replace a file.
  bool LostBlock() const { return lostBlock_; }

  std::int32_t indent = 0;        ///< current nesting level
  std::uint32_t outLength = 0;    ///< bytes written
  std::uint32_t outCapacity = 0;  ///< bytes that the block is said to have

protected:
  /// Resizes the block as `realloc` does; null when there is no memory for it.
  virtual void* Reallocate(void* block, std::size_t size);

  /// Makes a document that has lost its block stay without one until the next `ResetOutput`, so
  /// that composing the rest of it costs next to nothing.
  void StopAtLoss() { stopsAtLoss_ = true; }

  /// Called when the block is full, before it grows: a class that has taken the text so far may set
  /// `outLength` to 0.
  virtual void OnFullBlock() {}

  /// Where an empty element of at most so many characters is written straight into the block, its
  /// line indented already; null where the block may have to grow for it.
  char* BeginEmptyElementLine(std::size_t longest);

  /// Takes the line that was begun, up to its end.
  void EndEmptyElementLine(const char* end)
  {
    outLength = static_cast<std::uint32_t>(end - outBuffer_.get());
  }

  /// Writes an empty element from its "<" to its line break; `attributeLength` of it are the
  /// attributes with the blanks behind them.
  void WriteEmptyElementLine(std::string_view line, std::size_t attributeLength);

private:
  struct FreeBlock {
    void operator()(char* block) const { std::free(block); }
  };

  bool MakeRoom(std::size_t margin);
  bool GrowCapacity(std::size_t margin);
  bool GrowBlock(std::size_t size);
  void Append(std::string_view text);

  /// Writes an indented line of several parts; false where there is no memory for it. A margin of 0
  /// is that of a caller who has made room.
  bool WriteLine(std::size_t margin, std::initializer_list<std::string_view> parts);

  IMessageBoxes& messages_;
  std::unique_ptr<char, FreeBlock> outBuffer_;
  std::size_t blockSize_ = 0;  ///< bytes of the block, never fewer than `outCapacity`
  bool lostBlock_ = false;
  bool stopsAtLoss_ = false;
  int writeError_ = 0;
  ReadError readError_;
};

/// Replaces the five markup characters by their entities, and every unit outside 0x20 to 0x7F by a
/// numeric character reference, so that the result is ASCII.
std::string Escape(std::u16string_view text);

}  // namespace hullwright
