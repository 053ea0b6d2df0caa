#pragma once

#include <optional>
#include <string>

#include "replay/driver/ReplayEditor.h"
#include "replay/driver/Script.h"

namespace hullwright::replay {

/// How much a step reports of the state that it leaves: nothing, its hash, or all of it as well.
enum class Detail { Events, Hash, Full };

/// Plays the steps of a script on an editor, one after the other.
class Player {
public:
  explicit Player(ReplayEditor& editor) : editor_(editor) {}

  /// Carries one step out; what it reports.
  Value Play(const Json& step, Detail detail);

private:
  using Handler = Value (Player::*)(const Json&);
  static Handler FindHandler(const std::string& name);

  void Prepare(const Json& step);
  void ReportState(Value::Object& report, bool full);
  Value Size(const Json& step);
  Value Mouse(const Json& step);
  Value Wheel(const Json& step);
  Value SetCursor(const Json& step);
  Value Command(const Json& step);
  Value Menu(const Json& step);
  Value TreeClick(const Json& step);
  Value TreeMenu(const Json& step);
  Value TreeCommand(const Json& step);
  Value StatusClick(const Json& step);
  Value User(const Json& step);
  Value New(const Json& step);
  Value Open(const Json& step);
  Value Save(const Json& step);
  Value WriteFile(const Json& step);
  Value AnchorList(const Json& step);
  Value Setting(const Json& step);
  Value Trace(const Json& step);
  void NoteWritten(const std::u16string& path);  ///< if it is a file
  Value PutGroup(const Json& step);
  Value PutShape(const Json& step);
  Value PutAnchor(const Json& step);
  Value SetOffset(const Json& step);
  Value SetUnit(const Json& step);
  Value SetRotation(const Json& step);
  Value SetViewPort(const Json& step);
  Value Call(const Json& step);

  ReplayEditor& editor_;
  int number_ = 0;
  std::optional<std::u16string> written_;  ///< path of the file that the step wrote
};

/// Carries out a single operation on an editor; nothing for a name that is none.
std::optional<Value> CallOperation(ReplayEditor& editor, const std::string& name,
                                   const Json& arguments);

}  // namespace hullwright::replay
