#include "replay/driver/FrameValue.h"

#include <utility>

namespace hullwright::replay {
namespace {

Value Of(const Colour& c) { return Row(c.red, c.green, c.blue, c.alpha); }
Value Of(const PixelRect& r) { return Row(r.left, r.top, r.right, r.bottom); }

Value Of(const std::vector<PixelPoint>& points)
{
  Value::List list;
  for (const PixelPoint& p : points) list.push_back(Row(p.x, p.y));
  return list;
}

Value Of(const Turn& turn)
{
  return Row("transform", Row(turn.degrees, turn.centre.x, turn.centre.y));
}

Value Filled(const PixelRect& rect, const Colour& colour)
{
  return Row("fillrect", Of(rect), Of(colour));
}

/// Lists the operations of each call.
class Printer {
public:
  explicit Printer(Value::List& operations) : operations_(operations) {}

  void operator()(const FrameBegun& call) { Add(Row("clear", Of(call.background))); }
  void operator()(const LineDrawn& call)
  {
    Add(Row("line", Row(call.from.x, call.from.y, call.to.x, call.to.y), call.stroke.width,
            Of(call.stroke.colour)));
  }
  void operator()(const RectangleDrawn& call)
  {
    Add(Row("rect", Of(call.rect), call.stroke.width, Of(call.stroke.colour)));
  }
  void operator()(const RectangleFilled& call) { Add(Filled(call.rect, call.colour)); }
  void operator()(const EllipseDrawn& call)
  {
    Add(Row("ellipse", Row(call.centre.x, call.centre.y, call.radiusX, call.radiusY),
            call.stroke.width, Of(call.stroke.colour)));
  }
  void operator()(const FiguresDrawn& call)
  {
    if (call.kind == FigureKind::Line) {
      for (const auto& figure : call.figures) {
        Add(Row("polyline", Of(figure), call.stroke.width, Of(call.stroke.colour)));
      }
      return;
    }
    Value::List rings;
    for (const auto& figure : call.figures) rings.push_back(Of(figure));
    Add(Row("geometry", std::move(rings), call.stroke.width, Of(call.stroke.colour)));
  }
  void operator()(const TextDrawn& call)
  {
    constexpr int centredOnBothAxes = 2;
    if (call.turn) Add(Of(*call.turn));
    if (call.ground) Add(Filled(call.rect, *call.ground));
    Add(Row("text", Of(call.rect), call.family, call.size, call.text, Of(call.colour),
            call.centred ? centredOnBothAxes : 0));
    if (call.turn) Add(Of(Turn{}));
  }

  // What is no part of a picture.
  void operator()(const StepTaken&) {}
  void operator()(const PictureResized&) {}
  void operator()(const FrameEnded&) {}

private:
  void Add(Value operation) { operations_.push_back(std::move(operation)); }

  Value::List& operations_;
};

}  // namespace

Value FrameValue(std::span<const DrawingCall> calls)
{
  const std::span<const DrawingCall> frame = LastFrame(calls);
  if (frame.empty() || !std::holds_alternative<FrameEnded>(frame.back())) return {};
  Value::List operations;
  for (const DrawingCall& call : frame) std::visit(Printer(operations), call);
  return operations;
}

}  // namespace hullwright::replay
