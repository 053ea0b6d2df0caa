#pragma once

#include <iterator>

#include "replay/driver/Script.h"
#include "replay/random/Choices.h"

namespace hullwright::replay {

/// Makes steps, mostly sensible ones, as the choices have it.
class StepMaker {
public:
  explicit StepMaker(IChoices& choices) : choices_(choices) {}

  Json Next();

private:
  int Below(int limit) { return choices_.Below(limit); }
  double Coordinate() { return choices_.Coordinate(); }

  template <class List>
  auto AnyOf(const List& list)
  {
    return list[Below(static_cast<int>(std::size(list)))];
  }

  Json At(const char* name, Json step = Json::object());
  Json WithAnswers(Json step);
  Json Path();
  Json PutShape();
  Json Anchor();
  Json Import();
  Json Rare();

  IChoices& choices_;
};

}  // namespace hullwright::replay
