#include "replay/driver/FrameRecorder.h"

#include <utility>

namespace hullwright::replay {
namespace {

struct Brush : IBrush {
  explicit Brush(const Colour& value) : colour(value) {}
  void SetColour(const Colour& value) override { colour = value; }
  Colour colour;
};

struct Format : ITextFormat {
  void CentreText() override { centred = true; }
  void DisableWordWrapping() override {}
  std::u16string family;
  float size = 0.0F;
  bool centred = false;
};

struct Path : IPathGeometry {
  Created<IPathSink> Open() override;
  std::vector<std::vector<PixelPoint>> figures;
  bool closed = false;
};

struct Sink : IPathSink {
  explicit Sink(Path& owner) : path(owner) {}
  void ForceRoundLineJoins() override {}
  void BeginFigure(PixelPoint, FigureFill) override { path.figures.emplace_back(); }
  void AddLines(std::span<const PixelPoint> points) override
  {
    path.figures.back().assign(points.begin(), points.end());
  }
  void EndFigure(FigureEnd end) override { path.closed = end == FigureEnd::Closed; }
  ResultCode Close() override { return 0; }
  Path& path;
};

Created<IPathSink> Path::Open() { return {0, std::make_unique<Sink>(*this)}; }

Value Of(const Colour& c) { return Row(c.red, c.green, c.blue, c.alpha); }
Value Of(const IBrush& brush) { return Of(static_cast<const Brush&>(brush).colour); }
Value Of(const PixelRect& r) { return Row(r.left, r.top, r.right, r.bottom); }

Value Of(const std::vector<PixelPoint>& points)
{
  Value::List list;
  for (const PixelPoint& p : points) list.push_back(Row(p.x, p.y));
  return list;
}

class Target : public IRenderTarget {
public:
  explicit Target(FrameRecorder& recorder) : recorder_(recorder) {}

  void Resize(int, int) override {}
  void BeginDraw() override
  {
    recorder_.operations.clear();
    if (recorder_.onFrame) recorder_.onFrame();
  }
  void Clear(const Colour& colour) override { Add(Row("clear", Of(colour))); }
  ResultCode EndDraw() override
  {
    recorder_.frame = std::exchange(recorder_.operations, {});
    return 0;
  }
  std::unique_ptr<IBrush> CreateSolidColourBrush(const Colour& colour) override
  {
    return std::make_unique<Brush>(colour);
  }
  void DrawLine(PixelPoint from, PixelPoint to, const IBrush& brush, float width) override
  {
    Add(Row("line", Row(from.x, from.y, to.x, to.y), width, Of(brush)));
  }
  void DrawRectangle(const PixelRect& rect, const IBrush& brush, float width) override
  {
    Add(Row("rect", Of(rect), width, Of(brush)));
  }
  void FillRectangle(const PixelRect& rect, const IBrush& brush) override
  {
    Add(Row("fillrect", Of(rect), Of(brush)));
  }
  void DrawEllipse(PixelPoint centre, float radiusX, float radiusY, const IBrush& brush,
                   float width) override
  {
    Add(Row("ellipse", Row(centre.x, centre.y, radiusX, radiusY), width, Of(brush)));
  }
  void DrawGeometry(const IPathGeometry& geometry, const IBrush& brush, float width) override
  {
    const auto& path = static_cast<const Path&>(geometry);
    ++recorder_.strokes;
    if (!path.closed && path.figures.size() == 1) {
      Add(Row("polyline", Of(path.figures.front()), width, Of(brush)));
      return;
    }
    Value::List rings;
    for (const auto& figure : path.figures) rings.push_back(Of(figure));
    Add(Row("geometry", std::move(rings), width, Of(brush)));
  }
  void DrawText(std::u16string_view text, const ITextFormat& format, const PixelRect& rect,
                const IBrush& brush) override
  {
    constexpr int centredOnBothAxes = 2;
    const auto& f = static_cast<const Format&>(format);
    Add(Row("text", Of(rect), f.family, f.size, text, Of(brush),
            f.centred ? centredOnBothAxes : 0));
  }
  void SetRotation(float angleDegrees, PixelPoint centre) override
  {
    Add(Row("transform", Row(angleDegrees, centre.x, centre.y)));
  }

private:
  void Add(Value operation) { recorder_.operations.push_back(std::move(operation)); }

  FrameRecorder& recorder_;
};

class DrawFactory : public IDrawFactory {
public:
  explicit DrawFactory(FrameRecorder& recorder) : recorder_(recorder) {}
  Created<IRenderTarget> CreateWindowTarget(IDrawingWindow&, int, int, float, float) override
  {
    if (recorder_.Fails(1)) return {recorder_.failCode, nullptr};
    return {0, std::make_unique<Target>(recorder_)};
  }
  Created<IPathGeometry> CreatePathGeometry() override { return {0, std::make_unique<Path>()}; }

private:
  FrameRecorder& recorder_;
};

class WriteFactory : public IWriteFactory {
public:
  Created<ITextFormat> CreateTextFormat(std::u16string_view family, float size) override
  {
    auto format = std::make_unique<Format>();
    format->family = family;
    format->size = size;
    return {0, std::move(format)};
  }
  std::optional<PixelSize> MeasureText(const ITextFormat& format, std::u16string_view text, float,
                                       float) override
  {
    const float size = static_cast<const Format&>(format).size;
    return PixelSize{static_cast<float>(text.size()) * 0.5F * size, size};
  }
};

}  // namespace

Created<IDrawFactory> FrameRecorder::CreateDrawFactory()
{
  if (Fails(0)) return {failCode, nullptr};
  return {0, std::make_unique<DrawFactory>(*this)};
}

Created<IWriteFactory> FrameRecorder::CreateWriteFactory()
{
  if (Fails(2)) return {failCode, nullptr};
  return {0, std::make_unique<WriteFactory>()};
}

Created<IImagingFactory> FrameRecorder::CreateImagingFactory()
{
  if (Fails(3)) return {failCode, nullptr};
  return {0, std::make_unique<IImagingFactory>()};
}

}  // namespace hullwright::replay
