#include "file/HullwrightDoc.h"

#include <cerrno>
#include <cstring>

#include "base/Text.h"
#include "file/FileVessel.h"
#include "file/OpenFile.h"

namespace hullwright {
namespace {

/// x, y and z, without the carried fields.
void CopyCoordinates(const CShapeVertex& from, CShapeVertex& to)
{
  to.x = from.x;
  to.y = from.y;
  to.z = from.z;
}

std::u16string CannotOpen(std::u16string_view path, int error)
{
  // In the language of all other messages, whatever the locale.
  const std::string reason = error != 0 ? strerrordesc_np(error) : "It is not a file";
  return u"The file \"" + std::u16string(path) + u"\" cannot be opened.\n" + WideFromUtf8(reason) +
         u".";
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
  if (mainWindow_.HasWindow()) mainWindow_.NotifyDesignChanged();
  SetModifiedFlag(false);
  if (onEmptied) onEmptied();
}

bool CHullwrightDoc::OnOpenDocument(std::u16string_view path)
{
  errno = 0;
  if (!OpenToRead(path)) {
    messages_.ShowMessage(CannotOpen(path, errno));
    return false;
  }
  DeleteContents();

  CFileVessel file(messages_);
  ClearGroups(design_.shapeGroups);
  file.anchors->Clear();
  file.groups = &design_.shapeGroups;
  if (file.Read(path) != 0) return false;
  CopyCoordinates(*file.gps, *design_.offsetGps);
  CopyCoordinates(*file.txd, *design_.offsetTransducer);
  CopyCoordinates(*file.piv, *design_.offsetPivot);
  design_.anchors->AppendClones(*file.anchors);
  design_.unitCode = file.unitCode;
  mainWindow_.NotifyDesignChanged();
  return true;
}

bool CHullwrightDoc::OnSaveDocument(std::u16string_view path)
{
  CFileVessel file(messages_);
  file.unitCode = design_.unitCode;
  file.anchors->AppendClones(*design_.anchors);
  CopyCoordinates(*design_.offsetGps, *file.gps);
  CopyCoordinates(*design_.offsetTransducer, *file.txd);
  CopyCoordinates(*design_.offsetPivot, *file.piv);
  savedWhole_ = file.Save(path, design_.shapeGroups) == 0;
  mainWindow_.SetModifiedFlag(false);
  return true;
}

}  // namespace hullwright
