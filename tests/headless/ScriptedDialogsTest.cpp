#include "headless/ScriptedDialogs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "resources/Controls.h"

namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::Pair;

/// A dialog that only shows its template.
class PlainDialog : public IDialog {
public:
  explicit PlainDialog(DialogId id) : id_(id) {}
  DialogId Template() const override { return id_; }

private:
  DialogId id_;
};

TEST(ScriptedDialogs, EachShowsItsOwnTextsAlone)
{
  ScriptedDialogs dialogs;
  PlainDialog move(DialogId::Move);
  PlainDialog scale(DialogId::Scale);
  dialogs.Run(move);
  EXPECT_EQ(dialogs.startTexts.size(), 4U);
  EXPECT_EQ(dialogs.GetText(MoveControls::directionXUnit), u"meters");
  dialogs.Run(scale);
  EXPECT_THAT(dialogs.startTexts, ElementsAre(Pair(ScaleControls::factor, u"")));
  EXPECT_EQ(dialogs.GetText(MoveControls::directionXUnit), u"");
}

}  // namespace
}  // namespace hullwright
