#include "file/HullwrightDoc.h"

#include <cerrno>

#include "base/ErrorText.h"
#include "base/OpenFile.h"
#include "base/Text.h"
#include "file/FileVessel.h"

namespace hullwright {
namespace {

/// x, y and z, without the carried fields.
void CopyCoordinates(const CShapeVertex& from, CShapeVertex& to)
{
  to.x = from.x;
  to.y = from.y;
  to.z = from.z;
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
  errno = 0;
  if (!OpenToRead(path)) {
    openProblem_ = Reason(errno, "It is not a file");
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
    openProblem_ = Describe(file.LastReadError());
    if (openProblem_.empty()) openProblem_ = Reason(0, "It can't be read");
    return false;
  }
  CopyCoordinates(*file.gps, *design_.offsetGps);
  CopyCoordinates(*file.txd, *design_.offsetTransducer);
  CopyCoordinates(*file.piv, *design_.offsetPivot);
  design_.anchors->AppendClones(*file.anchors);
  design_.unitCode = file.unitCode;
  mainWindow_.NotifyDesignChanged();
  return true;
}

void CHullwrightDoc::FillFile(CFileVessel& file) const
{
  file.unitCode = design_.unitCode;
  file.anchors->AppendClones(*design_.anchors);
  CopyCoordinates(*design_.offsetGps, *file.gps);
  CopyCoordinates(*design_.offsetTransducer, *file.txd);
  CopyCoordinates(*design_.offsetPivot, *file.piv);
}

bool CHullwrightDoc::OnSaveDocument(std::u16string_view path)
{
  MessageForLater message;
  CFileVessel file(message);
  FillFile(file);
  file.Compose(design_.shapeGroups);
  saveProblem_.clear();
  if (file.LostBlock()) {
    saveProblem_ = Reason(ENOMEM, "");
  } else if (file.Flush(path) != 0) {
    saveProblem_ = Reason(file.WriteError(), "There is nothing to write");
  }
  // Before anybody reads a message: the file may be torn until then.
  if (!SavedWhole() && onSaveFailed) onSaveFailed();
  message.ShowOn(messages_);
  mainWindow_.SetModifiedFlag(false);
  return true;
}

std::optional<std::size_t> CHullwrightDoc::Fingerprint() const
{
  CFileVessel file(messages_);
  FillFile(file);
  file.Compose(design_.shapeGroups, CFileVessel::EmptyGroups::LeftOut);
  if (file.LostBlock()) return std::nullopt;
  return std::hash<std::string_view>()(file.Output());
}

}  // namespace hullwright
