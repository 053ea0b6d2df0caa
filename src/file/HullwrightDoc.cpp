#include "file/HullwrightDoc.h"

#include <cerrno>
#include <new>

#include "base/ErrorText.h"
#include "base/OpenFile.h"
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
    const std::size_t piece = std::hash<std::string_view>()(Output());
    hash_ ^= piece + 0x9E3779B9U + (hash_ << 6U) + (hash_ >> 2U);
    outLength = 0;
  }

private:
  std::size_t hash_ = 0;
};

std::u16string CannotOpen(std::u16string_view path, const std::u16string& reason)
{
  return u"The file \"" + std::u16string(path) + u"\" cannot be opened.\n" + reason + u".";
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
  return true;
}

void CHullwrightDoc::DeleteContents()
{
  ClearGroups(design_.shapeGroups);
  design_.anchors->Clear();
  RecoverView(design_);
  if (mainWindow_.HasWindow()) mainWindow_.NotifyDesignChanged();
  SetModifiedFlag(false);
  if (onEmptied) onEmptied();
}

bool CHullwrightDoc::OnOpenDocument(std::u16string_view path)
{
  openError_ = {};
  errno = 0;
  if (!OpenToRead(path)) {
    openProblem_ = Reason(errno, notAFile);
    messages_.ShowMessage(CannotOpen(path, openProblem_));
    return false;
  }
  openProblem_.clear();
  DeleteContents();

  CFileVessel file(messages_);
  ClearGroups(design_.shapeGroups);
  file.anchors->Clear();
  file.groups = &design_.shapeGroups;
  if (file.Read(path) != 0) {
    openError_ = file.LastReadError();
    if (openError_.message.empty()) openError_.message = Reason(0, "It can't be read");
    openProblem_ = Describe(openError_);
    return false;
  }
  ForEachOffset(file, design_, [](const CShapeVertex& inFile, CShapeVertex& inDesign) {
    CopyCoordinates(inFile, inDesign);
  });
  design_.anchors->AppendClones(*file.anchors);
  design_.unitCode = file.unitCode;
  mainWindow_.NotifyDesignChanged();
  return true;
}

void CHullwrightDoc::FillFile(CFileVessel& file) const
{
  file.unitCode = design_.unitCode;
  file.anchors->AppendClones(*design_.anchors);
  ForEachOffset(file, design_, [](CShapeVertex& inFile, const CShapeVertex& inDesign) {
    CopyCoordinates(inDesign, inFile);
  });
}

std::u16string CHullwrightDoc::Write(std::u16string_view path, IMessageBoxes& messages) const
{
  try {
    CFileVessel file(messages);
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
  saveProblem_ = Write(path, message);
  // Before anybody reads a message: the file may be torn until then.
  if (!SavedWhole() && onSaveFailed) onSaveFailed();
  message.ShowOn(messages_);
  mainWindow_.SetModifiedFlag(false);
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
