#include "file/HullwrightDoc.h"

#include <cerrno>
#include <memory>
#include <new>
#include <utility>

#include "base/ErrorText.h"
#include "base/OpenFile.h"
#include "base/Pages.h"
#include "base/Text.h"
#include "file/DesignElements.h"
#include "file/FileVessel.h"

namespace hullwright {
namespace {

/// x, y and z, without the carried fields.
void CopyCoordinates(const CShapeVertex& from, CShapeVertex& to)
{
  for (const Coordinate& coordinate : coordinates) {
    to.*coordinate.member = from.*coordinate.member;
  }
}

/// Calls `visit` with each offset in the file object and in the design.
template <class Visit>
void ForEachOffset(CFileVessel& file, const DesignState& design, Visit visit)
{
  for (const DesignElement& element : designElements) {
    if (const auto* const offset = std::get_if<OffsetMember>(&element.member)) {
      visit(*(file.*offset->inFile), *(design.*offset->inDesign));
    }
  }
}

/// Why a file could not be opened or written; `unknown` where there is no `errno`.
std::u16string Reason(int error, const char* unknown)
{
  return WideFromUtf8(error != 0 ? ErrorText(error) : unknown);
}

/// Keeps a message back until its time has come.
class MessageForLater : public IMessageBoxes {
public:
  void ShowMessage(std::u16string_view text) override { text_ = text; }
  bool AskYesNo(std::u16string_view) override { return false; }
  void ShowOn(IMessageBoxes& messages) const
  {
    if (!text_.empty()) messages.ShowMessage(text_);
  }

private:
  std::u16string text_;
};

/// Hashes what a save writes piece by piece, so that it never stands in memory whole.
class HashedFile : public CFileVessel {
public:
  using CFileVessel::CFileVessel;

  /// Of what was composed; once.
  std::size_t Hash()
  {
    OnFullBlock();
    return hash_;
  }

protected:
  void OnFullBlock() override
  {
    constexpr std::size_t goldenRatio = 0x9E3779B9U;  // 2^32 divided by it: bits without a pattern
    const std::size_t piece = std::hash<std::string_view>()(Output());
    hash_ ^= piece + goldenRatio + (hash_ << 6U) + (hash_ >> 2U);
    outLength = 0;
  }

private:
  std::size_t hash_ = 0;
};

/// Saves a design for the last time: what stands in the text goes from the design, and from memory.
class LastFile : public CFileVessel {
public:
  using CFileVessel::CFileVessel;

protected:
  void OnPassed(CShape& shape) override
  {
    gone_ += shape.vertices.size();
    OwnedArray<CShapeVertex>().swap(shape.vertices);
    shape.attributes.reset();
    shape.style.reset();
    if (gone_ < enough_) return;
    GiveBackFreed();
    // Each time costs a walk over all that has gone, so the times become rarer: what has gone makes
    // more than enough room for the text until the next time.
    enough_ = gone_ + gone_ / 4;
  }

private:
  std::size_t gone_ = 0;                        ///< vertices
  std::size_t enough_ = std::size_t{1} << 15U;  ///< to look for what can be given back
};

/// The groups and anchors of a design, kept aside while it is empty. They go back into it unless
/// they are let go.
class FormerContents {
public:
  explicit FormerContents(DesignState& design)
      : design_(design),
        groups_(std::move(design.shapeGroups)),
        anchors_(std::move(design.anchors->items))
  {
    design.shapeGroups.clear();
    design.anchors->items.clear();
  }
  FormerContents(const FormerContents&) = delete;
  FormerContents& operator=(const FormerContents&) = delete;
  ~FormerContents()
  {
    if (isLetGo_) return;
    design_.shapeGroups.swap(groups_);
    design_.anchors->items.swap(anchors_);
  }

  void LetGo() { isLetGo_ = true; }

private:
  DesignState& design_;
  OwnedArray<CShapes> groups_;
  OwnedArray<CAnchor> anchors_;
  bool isLetGo_ = false;
};

/// The `errno` of opening a file, 0 where there is none for it; nothing for one that opens.
std::optional<int> OpeningError(std::u16string_view path)
{
  errno = 0;
  try {
    if (OpenToRead(path)) return std::nullopt;
  } catch (const std::bad_alloc&) {
    return ENOMEM;
  }
  return errno;
}

std::u16string CannotOpen(std::u16string_view path, const std::u16string& reason)
{
  return u"The file \"" + std::u16string(path) + u"\" cannot be opened.\n" + reason + u".";
}

/// The file object of a save; null where there is no memory for it.
std::unique_ptr<CFileVessel> NewFile(IMessageBoxes& messages, bool letsGo)
{
  try {
    if (letsGo) return std::make_unique<LastFile>(messages);
    return std::make_unique<CFileVessel>(messages);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

}  // namespace

CHullwrightDoc::CHullwrightDoc(DesignState& design, IMainWindow& mainWindow,
                               IMessageBoxes& messages)
    : design_(design), mainWindow_(mainWindow), messages_(messages)
{
}

bool CHullwrightDoc::OnNewDocument()
{
  DeleteContents();
  if (onEmptied) onEmptied();
  return true;
}

void CHullwrightDoc::DeleteContents()
{
  ClearGroups(design_.shapeGroups);
  design_.anchors->Clear();
  RecoverView(design_);
  if (mainWindow_.HasWindow()) mainWindow_.NotifyDesignChanged();
  SetModifiedFlag(false);
}

bool CHullwrightDoc::OnOpenDocument(std::u16string_view path)
{
  openError_ = {};
  leftOutParts_ = 0;
  if (const auto error = OpeningError(path)) {
    openProblem_ = Reason(*error, notAFile);
    messages_.ShowMessage(CannotOpen(path, openProblem_));
    return false;
  }
  openProblem_.clear();
  const bool wasModified = modified_;
  const Reading reading = ReadInto(path);
  if (reading == Reading::OutOfMemory) {
    openError_ = {.message = u"out of memory", .outOfMemory = true};
    SetModifiedFlag(wasModified);
  } else if (onEmptied) {
    onEmptied();
  }
  if (reading != Reading::Whole) openProblem_ = Describe(openError_);
  if (reading != Reading::Broken) mainWindow_.NotifyDesignChanged();
  return reading == Reading::Whole;
}

CHullwrightDoc::Reading CHullwrightDoc::ReadInto(std::u16string_view path)
{
  try {
    CFileVessel file(messages_);
    FormerContents former(design_);
    DeleteContents();
    file.groups = &design_.shapeGroups;
    const bool whole = file.Read(path) == 0;
    openError_ = file.LastReadError();
    if (openError_.outOfMemory) return Reading::OutOfMemory;
    if (!whole && openError_.message.empty()) openError_.message = Reason(0, "It can't be read");
    leftOutParts_ = file.LeftOutParts();
    if (whole) TakeOver(file);
    former.LetGo();
    return whole ? Reading::Whole : Reading::Broken;
  } catch (const std::bad_alloc&) {
    return Reading::OutOfMemory;
  }
}

void CHullwrightDoc::TakeOver(CFileVessel& file)
{
  ForEachOffset(file, design_, [](const CShapeVertex& inFile, CShapeVertex& inDesign) {
    CopyCoordinates(inFile, inDesign);
  });
  design_.anchors->items.swap(file.anchors->items);
  design_.unitCode = file.unitCode;
}

void CHullwrightDoc::FillFile(CFileVessel& file) const
{
  file.unitCode = design_.unitCode;
  file.anchors->AppendClones(*design_.anchors);
  ForEachOffset(file, design_, [](CShapeVertex& inFile, const CShapeVertex& inDesign) {
    CopyCoordinates(inDesign, inFile);
  });
}

std::u16string CHullwrightDoc::Write(CFileVessel& file, std::u16string_view path) const
{
  try {
    FillFile(file);
    if (file.Save(path, design_.shapeGroups) == 0) return {};
    return Reason(file.LostBlock() ? ENOMEM : file.WriteError(), "There is nothing to write");
  } catch (const std::bad_alloc&) {
    // Nothing needs memory once the file is open.
    return Reason(ENOMEM, "");
  }
}

bool CHullwrightDoc::OnSaveDocument(std::u16string_view path)
{
  MessageForLater message;
  const std::unique_ptr<CFileVessel> file = NewFile(message, letsGoAtSave_);
  saveProblem_ = file ? Write(*file, path) : Reason(ENOMEM, "");
  // Before anybody reads a message: the file may be torn until then.
  if (!SavedWhole() && onSaveFailed) onSaveFailed();
  message.ShowOn(messages_);
  if (file) mainWindow_.SetModifiedFlag(false);
  return true;
}

std::optional<std::size_t> CHullwrightDoc::Fingerprint() const
{
  try {
    HashedFile file(messages_);
    FillFile(file);
    file.Compose(design_.shapeGroups, CFileVessel::EmptyGroups::LeftOut);
    if (file.LostBlock()) return std::nullopt;
    return file.Hash();
  } catch (const std::bad_alloc&) {
    return std::nullopt;
  }
}

}  // namespace hullwright
