#include "support/DrawingLines.h"

#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"

namespace hullwright::test {
namespace {

std::string PointText(PixelPoint p) { return Exact(p.x) + "," + Exact(p.y); }

std::string Four(float a, float b, float c, float d)
{
  return Exact(a) + " " + Exact(b) + " " + Exact(c) + " " + Exact(d);
}

std::string RectText(const PixelRect& r) { return Four(r.left, r.top, r.right, r.bottom); }

std::string StrokeText(const Stroke& stroke)
{
  return " width " + Exact(stroke.width) + " colour " + Exact(stroke.colour);
}

std::string TurnText(const Turn& turn)
{
  return "rotate " + Exact(turn.degrees) + " " + Exact(turn.centre.x) + " " + Exact(turn.centre.y);
}

/// Writes each call down.
class Printer {
public:
  explicit Printer(std::vector<std::string>& lines) : lines_(lines) {}

  void operator()(const StepTaken& call)
  {
    switch (call.step) {
      case TargetStep::Drawing: Add("factory"); break;
      case TargetStep::Picture:
        Add("target " + Size(call.width, call.height) + " " + Exact(call.resolution.x) + " " +
            Exact(call.resolution.y));
        break;
      case TargetStep::Texts: Add("write factory"); break;
      case TargetStep::Imaging: Add("imaging factory"); break;
      case TargetStep::Window:
      case TargetStep::ClientArea: break;  // questions to the window, not to the picture
    }
  }
  void operator()(const PictureResized& call) { Add("resize " + Size(call.width, call.height)); }
  void operator()(const FrameBegun& call)
  {
    Add("begin");
    Add("clear " + Exact(call.background));
  }
  void operator()(const FrameEnded&) { Add("end"); }
  void operator()(const LineDrawn& call)
  {
    Add("line " + Four(call.from.x, call.from.y, call.to.x, call.to.y) + StrokeText(call.stroke));
  }
  void operator()(const RectangleDrawn& call)
  {
    Add("rect " + RectText(call.rect) + StrokeText(call.stroke));
  }
  void operator()(const RectangleFilled& call) { AddFilled(call.rect, call.colour); }
  void operator()(const EllipseDrawn& call)
  {
    Add("ellipse " + Four(call.centre.x, call.centre.y, call.radiusX, call.radiusY) +
        StrokeText(call.stroke));
  }
  void operator()(const FiguresDrawn& call)
  {
    const bool line = call.kind == FigureKind::Line;
    std::string text = line ? "geometry round" : "geometry";
    for (const std::vector<PixelPoint>& figure : call.figures) {
      text += (line ? " hollow " : " filled ") + PointText(figure.front()) + " :";
      for (const PixelPoint& point : figure) text += " " + PointText(point);
      text += line ? " open" : " closed";
    }
    Add(text + StrokeText(call.stroke));
  }
  void operator()(const TextDrawn& call)
  {
    if (call.turn) Add(TurnText(*call.turn));
    if (call.ground) AddFilled(call.rect, *call.ground);
    Add("text '" + Utf8FromWide(call.text) + "' " + Utf8FromWide(call.family) + " " +
        Exact(call.size) + (call.centred ? " centred" : "") + " in " + RectText(call.rect) +
        " colour " + Exact(call.colour));
    if (call.turn) Add(TurnText(Turn{}));
  }

private:
  static std::string Size(int width, int height)
  {
    return std::to_string(width) + " " + std::to_string(height);
  }
  void Add(std::string line) { lines_.push_back(std::move(line)); }
  void AddFilled(const PixelRect& rect, const Colour& colour)
  {
    Add("fillrect " + RectText(rect) + " colour " + Exact(colour));
  }

  std::vector<std::string>& lines_;
};

}  // namespace

std::vector<std::string> LinesOf(std::span<const DrawingCall> calls)
{
  std::vector<std::string> lines;
  for (const DrawingCall& call : calls) std::visit(Printer(lines), call);
  return lines;
}

std::vector<std::string> FrameLines(std::span<const DrawingCall> calls)
{
  std::vector<std::string> lines = LinesOf(LastFrame(calls));
  if (!lines.empty()) lines.erase(lines.begin());
  if (!lines.empty() && lines.back() == "end") lines.pop_back();
  return lines;
}

std::string Exact(float value) { return FormatShortest(value); }

std::string Exact(const Colour& colour)
{
  return Exact(colour.red) + " " + Exact(colour.green) + " " + Exact(colour.blue) + " " +
         Exact(colour.alpha);
}

}  // namespace hullwright::test
