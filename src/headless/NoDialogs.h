#pragma once

#include "platform/DialogPort.h"

namespace hullwright {

/// Every dialog is given up before it is seen.
class NoDialogs : public IDialogRunner {
public:
  DialogEnd Run(IDialog&) override { return DialogEnd::Cancel; }
};

}  // namespace hullwright
