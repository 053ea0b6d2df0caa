#include "app/DocumentLife.h"

#include <algorithm>

#include "app/NonFiniteNumbers.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "resources/Strings.h"

namespace hullwright {
namespace {

std::u16string FolderOf(std::u16string_view path)
{
  const std::size_t slash = path.rfind(u'/');
  if (slash == std::u16string_view::npos) return {};
  return std::u16string(path.substr(0, std::max<std::size_t>(slash, 1)));
}

std::u16string NameOf(std::u16string_view path)
{
  return std::u16string(path.substr(path.rfind(u'/') + 1));
}

std::u16string Quoted(std::u16string_view text) { return u'"' + std::u16string(text) + u'"'; }

}  // namespace

DocumentLife::DocumentLife(CHullwrightDoc& document, const DesignState& design,
                           const DocumentPorts& ports)
    : document_(document), design_(design), ports_(ports)
{
  // What a failed open leaves must not be saved over the file that was open before.
  document_.onEmptied = [this] {
    emptied_ = true;
    SetPath({});
  };
  document_.onSaveFailed = [this] { restored_ = ports_.formerVersions.PutBack(); };
  Settle();
}

void DocumentLife::New()
{
  if (!MayLeave()) return;
  document_.OnNewDocument();
  Settle();
}

bool DocumentLife::Open(std::u16string path)
{
  if (path.empty()) {
    const auto answer = ports_.dialogs.AskDesignToOpen(Folder());
    if (!answer) return false;
    path = *answer;
  }
  path = AbsolutePath(path);
  if (!MayLeave()) return false;
  emptied_ = false;
  if (document_.OnOpenDocument(path)) {
    Remember(path);
    // A save must not take out of the file what the open has left out.
    if (document_.LeftOutParts() == 0) SetPath(path);
    Settle();
    NoteLeftOut(path);
    return true;
  }
  // What a file that is not well-formed has left in the design stands in that file.
  if (emptied_) Settle();
  Forget(path);
  ports_.widgets.ShowNote(Quoted(NameOf(path)) + u" was not opened: " + document_.OpenProblem());
  return false;
}

void DocumentLife::NoteLeftOut(const std::u16string& path) const
{
  const std::size_t parts = document_.LeftOutParts();
  if (parts == 0) return;
  ports_.widgets.ShowNote(
      Quoted(NameOf(path)) + u" was opened without " + WideFromAscii(std::to_string(parts)) +
      (parts == 1 ? u" part" : u" parts") + u", for want of memory. It has no file name now.");
}

bool DocumentLife::Save() { return path_.empty() ? SaveAs() : SaveTo(path_); }

bool DocumentLife::SaveAs()
{
  const std::u16string name =
      path_.empty() ? Name() + std::u16string(Strings::fileExtension) : NameOf(path_);
  const auto path = ports_.dialogs.AskDesignToSave(Folder(), name);
  return path && SaveTo(AbsolutePath(*path));
}

bool DocumentLife::SaveTo(const std::u16string& path)
{
  const std::u16string formerVersion = ports_.formerVersions.Keep(path);
  document_.OnSaveDocument(path);
  const bool whole = document_.SavedWhole();
  if (whole) {
    ports_.formerVersions.Release();
    Remember(path);
    Settle();
    NoteSaved(path);
  } else {
    settled_.reset();
    NoteNotSaved(path, formerVersion);
  }
  // The next save goes where this one was meant to go, not over the file of before.
  SetPath(path);
  return whole;
}

void DocumentLife::NoteSaved(const std::u16string& path) const
{
  const std::u16string name = Quoted(NameOf(path));
  const std::u16string warning = Describe(FindNonFiniteNumbers(design_));
  if (!warning.empty()) {
    ports_.widgets.ShowNote(name + u" was saved, but it " + warning);
  } else if (HasUnfinishedPolyline()) {
    ports_.widgets.ShowNote(name + u" was saved without the polyline that is being drawn");
  }
}

void DocumentLife::NoteNotSaved(const std::u16string& path,
                                const std::u16string& formerVersion) const
{
  std::u16string note =
      u"Nothing was saved to " + Quoted(NameOf(path)) + u": " + document_.SaveProblem() + u".";
  if (!formerVersion.empty()) note += u" Former file: " + formerVersion + u".";
  switch (restored_) {
    case Restored::Nothing:
    case Restored::Unknown: break;
    case Restored::AsBefore: note += u" The file is as it was."; break;
    case Restored::Damaged: note += u" The file is damaged."; break;
  }
  ports_.widgets.ShowNote(note);
}

bool DocumentLife::HasUnfinishedPolyline() const
{
  return ports_.hasUnfinishedPolyline && ports_.hasUnfinishedPolyline();
}

bool DocumentLife::HasChanges() const
{
  if (document_.IsModified() || HasUnfinishedPolyline()) return true;
  return !settled_ || document_.Fingerprint() != settled_;
}

bool DocumentLife::MayLeave()
{
  if (!HasChanges()) return true;
  switch (ports_.dialogs.AskToLeave(Name())) {
    case LeaveAnswer::Save: return Save();
    case LeaveAnswer::Discard: return true;
    case LeaveAnswer::Stay: return false;
  }
  return false;
}

std::u16string DocumentLife::Name() const
{
  return path_.empty() ? std::u16string(Strings::untitled) : NameOf(path_);
}

std::u16string DocumentLife::Folder() const
{
  if (!path_.empty()) return FolderOf(path_);
  const std::vector<std::u16string> recent = RecentFiles();
  return recent.empty() ? std::u16string() : FolderOf(recent.front());
}

void DocumentLife::SetPath(const std::u16string& path)
{
  path_ = path;
  if (onChange) onChange();
}

std::vector<std::u16string> DocumentLife::RecentFiles() const
{
  std::vector<std::u16string> files = ports_.recentFiles.Read();
  if (files.size() > mostRecentFiles_) files.resize(mostRecentFiles_);
  return files;
}

void DocumentLife::Remember(const std::u16string& path)
{
  std::vector<std::u16string> files = RecentFiles();
  std::erase(files, path);
  files.insert(files.begin(), path);
  if (files.size() > mostRecentFiles_) files.resize(mostRecentFiles_);
  ports_.recentFiles.Write(files);
}

void DocumentLife::Forget(const std::u16string& path)
{
  std::vector<std::u16string> files = RecentFiles();
  if (std::erase(files, path) == 0) return;
  ports_.recentFiles.Write(files);
  if (onChange) onChange();
}

}  // namespace hullwright
