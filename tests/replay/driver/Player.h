#pragma once

#include <QJsonObject>
#include <optional>
#include <string>

#include "replay/driver/ReplayEditor.h"

namespace hullwright::replay {

/// How much a step reports of the state that it leaves: nothing, its hash, or all of it as well.
enum class Detail { Events, Hash, Full };

/// Plays the steps of a script on an editor, one after the other.
class Player {
public:
  explicit Player(ReplayEditor& editor) : editor_(editor) {}

  /// Carries one step out; what it reports.
  Value Play(const QJsonObject& step, Detail detail);

private:
  using Handler = Value (Player::*)(const QJsonObject&);
  static Handler FindHandler(const std::string& name);

  void Prepare(const QJsonObject& step);
  void ReportState(Value::Object& report, bool full);
  Value Size(const QJsonObject& step);
  Value Mouse(const QJsonObject& step);
  Value Wheel(const QJsonObject& step);
  Value SetCursor(const QJsonObject& step);
  Value Command(const QJsonObject& step);
  Value Menu(const QJsonObject& step);
  Value TreeClick(const QJsonObject& step);
  Value TreeMenu(const QJsonObject& step);
  Value TreeCommand(const QJsonObject& step);
  Value StatusClick(const QJsonObject& step);
  Value User(const QJsonObject& step);
  Value New(const QJsonObject& step);
  Value Open(const QJsonObject& step);
  Value Save(const QJsonObject& step);
  Value WriteFile(const QJsonObject& step);
  Value AnchorList(const QJsonObject& step);
  Value Setting(const QJsonObject& step);
  Value Trace(const QJsonObject& step);
  void NoteWritten(const std::u16string& path);  ///< if it is a file
  Value PutGroup(const QJsonObject& step);
  Value PutShape(const QJsonObject& step);
  Value PutAnchor(const QJsonObject& step);
  Value SetOffset(const QJsonObject& step);
  Value SetUnit(const QJsonObject& step);
  Value SetRotation(const QJsonObject& step);
  Value SetViewPort(const QJsonObject& step);
  Value Call(const QJsonObject& step);

  ReplayEditor& editor_;
  int number_ = 0;
  std::optional<std::u16string> written_;  ///< path of the file that the step wrote
};

/// Carries out a single operation on an editor; nothing for a name that is none.
std::optional<Value> CallOperation(ReplayEditor& editor, const std::string& name,
                                   const QJsonArray& arguments);

}  // namespace hullwright::replay
