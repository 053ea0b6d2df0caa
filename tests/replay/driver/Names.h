#pragma once

#include <string>
#include <vector>

#include "replay/driver/Script.h"

// Names that a script may have in place of the numbers of commands, sides and other codes.
namespace hullwright::replay {

struct CodeName {
  std::string name;
  int number;
};

/// The names for one sort of number. Each name stands once.
struct NameTable {
  const char* what;  ///< as a message calls it
  std::vector<CodeName> rows;
};

/// Commands: the title of the menu and the text of the entry, without blanks and marks, as in
/// "File.SaveDesignAs"; "View", "Menu" and "Tree" are the menus of the side drop-down, of the
/// design view and of the object tree. What stands in no menu is called by its tooltip
/// ("Tool.ShowAll") or else its key ("Key.F6").
///
/// Where the menu of the tree calls a command of the design view otherwise, both names stand for
/// it.
const NameTable& CommandNames();

/// The same, those of the tree's menu first.
const NameTable& TreeCommandNames();

const NameTable& SideNames();

/// The units of length in the program's own database.
const NameTable& UnitNames();

/// All tables of names, each once.
std::vector<const NameTable*> AllNames();

/// Puts the numbers in a step, or the header of a script, where it has names. An exception that
/// says so for a name that stands for nothing.
void NumbersForNames(Json& step);

/// Puts names where a step has numbers for which there are names; controls keep their numbers,
/// which stand for others in other dialogs.
void NamesForNumbers(Json& step);

}  // namespace hullwright::replay
