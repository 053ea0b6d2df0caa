#pragma once

#include "app/HullwrightApp.h"
#include "model/ShapeVertex.h"
#include "platform/DialogPort.h"

namespace hullwright {

/// Base of the dialogs that feed numbers to commands. Numbers are shown in a fixed format and read
/// back without validation: text that doesn't parse is 0.0.
class CDialogNumbers : public IDialog {
public:
  explicit CDialogNumbers(CHullwrightApp& app) : app_(app) {}

protected:
  CHullwrightApp& app_;
};

/// Grid and snap settings; OK stores all six.
class CDialogGrid : public CDialogNumbers {
public:
  using CDialogNumbers::CDialogNumbers;
  DialogId Template() const override;
  void OnStart(IDialogControls& controls) override;
  void OnClick(IDialogControls& controls, ControlId id) override;
  bool OnOk(IDialogControls& controls) override;

private:
  static void UpdateEnabled(IDialogControls& controls);
};

/// A way along x and y, in the x and y of a vertex.
class CDialogMove : public CDialogNumbers {
public:
  CDialogMove(CHullwrightApp& app, CShapeVertex& way) : CDialogNumbers(app), way_(way) {}
  DialogId Template() const override;
  void OnStart(IDialogControls& controls) override;
  bool OnOk(IDialogControls& controls) override;

private:
  CShapeVertex& way_;
};

/// The three offsets. OK sets the z of antenna and transducer to 0.0: there are no fields for them.
class CDialogOffsets : public CDialogNumbers {
public:
  /// `focus` is the kind of pick whose first field gets the focus; any other value sets none.
  CDialogOffsets(CHullwrightApp& app, HitKind focus) : CDialogNumbers(app), focus_(focus) {}
  DialogId Template() const override;
  void OnStart(IDialogControls& controls) override;
  bool OnOk(IDialogControls& controls) override;

private:
  HitKind focus_;
};

/// An angle and a direction; OK turns the polylines of the side in view.
class CDialogRotate : public CDialogNumbers {
public:
  CDialogRotate(CHullwrightApp& app, bool clockwise) : CDialogNumbers(app), clockwise_(clockwise) {}
  DialogId Template() const override;
  void OnStart(IDialogControls& controls) override;
  bool OnOk(IDialogControls& controls) override;

private:
  bool clockwise_;
};

/// A scale factor.
class CDialogScale : public CDialogNumbers {
public:
  using CDialogNumbers::CDialogNumbers;
  DialogId Template() const override;
  void OnStart(IDialogControls& controls) override;
  bool OnOk(IDialogControls& controls) override;

  double factor = 1.0;
};

/// The coordinates of a vertex, which OK writes straight into it. Null edits nothing.
class CDialogVertex : public CDialogNumbers {
public:
  CDialogVertex(CHullwrightApp& app, CShapeVertex* vertex) : CDialogNumbers(app), vertex_(vertex) {}
  DialogId Template() const override;
  void OnStart(IDialogControls& controls) override;
  bool OnOk(IDialogControls& controls) override;

private:
  CShapeVertex* vertex_;
};

/// The design's unit, chosen from the units of length in the database. OK changes the unit and
/// converts what a change of unit converts.
class CDialogUnits : public CDialogNumbers {
public:
  explicit CDialogUnits(CHullwrightApp& app) : CDialogNumbers(app), oldUnit_(app.unitCode) {}
  DialogId Template() const override;
  void OnStart(IDialogControls& controls) override;
  bool OnOk(IDialogControls& controls) override;

private:
  UnitCode oldUnit_;
};

/// Name, version and licence.
class CAboutDlg : public IDialog {
public:
  DialogId Template() const override;
};

}  // namespace hullwright
