#pragma once

#include <vector>

#include "app/HullwrightApp.h"
#include "model/GridSettings.h"
#include "model/ShapeVertex.h"
#include "platform/DialogPort.h"

namespace hullwright {

/// An edit field bound to the number that it shows and sets.
struct BoundNumber {
  ControlId field;
  double& value;
  int decimals;
};

/// Base of the dialogs that show numbers in edit fields: start shows each number, OK reads each
/// back. Numbers are shown in a fixed format and read back without validation: text that doesn't
/// parse is 0.0.
class CDialogNumbers : public IDialog {
public:
  explicit CDialogNumbers(CHullwrightApp& app) : app_(app) {}
  void OnStart(IDialogControls& controls) override;
  bool OnOk(IDialogControls& controls) override;

protected:
  CHullwrightApp& app_;

private:
  /// The numbers, in the order of their rows; none where what the dialog edits is missing.
  virtual std::vector<BoundNumber> Numbers() = 0;
};

/// Grid and snap settings; OK stores all six.
class CDialogGrid : public CDialogNumbers {
public:
  using CDialogNumbers::CDialogNumbers;
  DialogId Template() const override { return DialogId::Grid; }
  void OnStart(IDialogControls& controls) override;
  void OnClick(IDialogControls& controls, ControlId id) override;
  bool OnOk(IDialogControls& controls) override;

private:
  std::vector<BoundNumber> Numbers() override;
  static void UpdateEnabled(IDialogControls& controls);

  GridSettings grid_;
};

/// A displacement along x and y, in the x and y of a vertex.
class CDialogMove : public CDialogNumbers {
public:
  CDialogMove(CHullwrightApp& app, CShapeVertex& displacement)
      : CDialogNumbers(app), displacement_(displacement)
  {
  }
  DialogId Template() const override { return DialogId::Move; }

private:
  std::vector<BoundNumber> Numbers() override;

  CShapeVertex& displacement_;
};

/// The three offsets. OK sets the z of antenna and transducer to 0.0: there are no fields for them.
class CDialogOffsets : public CDialogNumbers {
public:
  /// `focus` is the kind of pick whose first field gets the focus; any other value sets none.
  CDialogOffsets(CHullwrightApp& app, HitKind focus) : CDialogNumbers(app), focus_(focus) {}
  DialogId Template() const override { return DialogId::Offsets; }
  void OnStart(IDialogControls& controls) override;
  bool OnOk(IDialogControls& controls) override;

private:
  bool HasOffsets() const;
  std::vector<BoundNumber> Numbers() override;

  HitKind focus_;
};

/// An angle and a direction; OK turns the polylines of the side in view.
class CDialogRotate : public IDialog {
public:
  CDialogRotate(CHullwrightApp& app, bool clockwise) : app_(app), clockwise_(clockwise) {}
  DialogId Template() const override { return DialogId::Rotate; }
  void OnStart(IDialogControls& controls) override;
  bool OnOk(IDialogControls& controls) override;

private:
  CHullwrightApp& app_;
  bool clockwise_;
};

/// A scale factor.
class CDialogScale : public CDialogNumbers {
public:
  using CDialogNumbers::CDialogNumbers;
  DialogId Template() const override { return DialogId::Scale; }

  double factor = 1.0;

private:
  std::vector<BoundNumber> Numbers() override;
};

/// The coordinates of a vertex, which OK writes straight into it. Null edits nothing.
class CDialogVertex : public CDialogNumbers {
public:
  CDialogVertex(CHullwrightApp& app, CShapeVertex* vertex) : CDialogNumbers(app), vertex_(vertex) {}
  DialogId Template() const override { return DialogId::Vertex; }

private:
  std::vector<BoundNumber> Numbers() override;

  CShapeVertex* vertex_;
};

/// The design's unit, chosen from the units of length in the database. OK changes the unit and
/// converts what a change of unit converts.
class CDialogUnits : public IDialog {
public:
  explicit CDialogUnits(CHullwrightApp& app) : app_(app), oldUnit_(app.unitCode) {}
  DialogId Template() const override { return DialogId::Units; }
  void OnStart(IDialogControls& controls) override;
  bool OnOk(IDialogControls& controls) override;

private:
  CHullwrightApp& app_;
  UnitCode oldUnit_;
};

/// Name, version and licence.
class CAboutDlg : public IDialog {
public:
  DialogId Template() const override { return DialogId::About; }
};

}  // namespace hullwright
