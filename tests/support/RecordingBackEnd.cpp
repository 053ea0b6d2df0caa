#include "support/RecordingBackEnd.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/Text.h"

namespace hullwright::test {
namespace {

struct Brush : IBrush {
  void SetColour(const Colour& value) override { colour = value; }
  Colour colour;
};

struct Format : ITextFormat {
  void CentreText() override { centred = true; }
  void DisableWordWrapping() override { wrapped = false; }
  std::u16string family;
  float size = 0.0F;
  bool centred = false;
  bool wrapped = true;
};

struct Path : IPathGeometry {
  explicit Path(RecordingBackEnd& owner) : backEnd(owner) {}
  Created<IPathSink> Open() override;
  RecordingBackEnd& backEnd;
  std::string text;
};

struct Sink : IPathSink {
  explicit Sink(Path& owner) : path(owner) {}
  void ForceRoundLineJoins() override { path.text += " round"; }
  void BeginFigure(PixelPoint start, FigureFill fill) override
  {
    path.text += fill == FigureFill::Hollow ? " hollow " : " filled ";
    path.text += Exact(start.x) + "," + Exact(start.y) + " :";
  }
  void AddLines(std::span<const PixelPoint> points) override
  {
    for (const PixelPoint& p : points) path.text += " " + Exact(p.x) + "," + Exact(p.y);
  }
  void EndFigure(FigureEnd end) override
  {
    path.text += end == FigureEnd::Open ? " open" : " closed";
  }
  ResultCode Close() override { return 0; }
  Path& path;
};

Created<IPathSink> Path::Open()
{
  if (backEnd.Fails(FailAt::PathOpen)) return {backEnd.failCode, nullptr};
  return {0, std::make_unique<Sink>(*this)};
}

std::string Rect(const PixelRect& r)
{
  return Exact(r.left) + " " + Exact(r.top) + " " + Exact(r.right) + " " + Exact(r.bottom);
}

std::string Stroke(const IBrush& brush, float width)
{
  return " width " + Exact(width) + " colour " + Exact(static_cast<const Brush&>(brush).colour);
}

class Target : public IRenderTarget {
public:
  explicit Target(RecordingBackEnd& backEnd) : backEnd_(backEnd) {}

  void Resize(int width, int height) override
  {
    Log("resize " + std::to_string(width) + " " + std::to_string(height));
  }
  void BeginDraw() override { Log("begin"); }
  void Clear(const Colour& colour) override { Log("clear " + Exact(colour)); }
  ResultCode EndDraw() override
  {
    Log("end");
    return backEnd_.Fails(FailAt::EndDraw) ? backEnd_.failCode : 0;
  }
  std::unique_ptr<IBrush> CreateSolidColourBrush(const Colour& colour) override
  {
    if (backEnd_.Fails(FailAt::Brush)) return nullptr;
    auto brush = std::make_unique<Brush>();
    brush->colour = colour;
    return brush;
  }
  void DrawLine(PixelPoint from, PixelPoint to, const IBrush& brush, float width) override
  {
    Log("line " + Rect({from.x, from.y, to.x, to.y}) + Stroke(brush, width));
  }
  void DrawRectangle(const PixelRect& rect, const IBrush& brush, float width) override
  {
    Log("rect " + Rect(rect) + Stroke(brush, width));
  }
  void FillRectangle(const PixelRect& rect, const IBrush& brush) override
  {
    Log("fillrect " + Rect(rect) + " colour " + Exact(static_cast<const Brush&>(brush).colour));
  }
  void DrawEllipse(PixelPoint centre, float radiusX, float radiusY, const IBrush& brush,
                   float width) override
  {
    Log("ellipse " + Rect({centre.x, centre.y, radiusX, radiusY}) + Stroke(brush, width));
  }
  void DrawGeometry(const IPathGeometry& geometry, const IBrush& brush, float width) override
  {
    Log("geometry" + static_cast<const Path&>(geometry).text + Stroke(brush, width));
  }
  void DrawText(std::u16string_view text, const ITextFormat& format, const PixelRect& rect,
                const IBrush& brush) override
  {
    const auto& f = static_cast<const Format&>(format);
    Log("text '" + Utf8FromWide(text) + "' " + Utf8FromWide(f.family) + " " + Exact(f.size) +
        (f.centred ? " centred" : "") + (f.wrapped ? " wrapped" : "") + " in " + Rect(rect) +
        " colour " + Exact(static_cast<const Brush&>(brush).colour));
  }
  void SetRotation(float angleDegrees, PixelPoint centre) override
  {
    Log("rotate " + Exact(angleDegrees) + " " + Exact(centre.x) + " " + Exact(centre.y));
  }

private:
  void Log(std::string line) { backEnd_.log.push_back(std::move(line)); }

  RecordingBackEnd& backEnd_;
};

class DrawFactory : public IDrawFactory {
public:
  explicit DrawFactory(RecordingBackEnd& backEnd) : backEnd_(backEnd) {}
  Created<IRenderTarget> CreateWindowTarget(IDrawingWindow&, int width, int height, float dpiX,
                                            float dpiY) override
  {
    backEnd_.log.push_back("target " + std::to_string(width) + " " + std::to_string(height) + " " +
                           Exact(dpiX) + " " + Exact(dpiY));
    if (backEnd_.Fails(FailAt::WindowTarget)) return {backEnd_.failCode, nullptr};
    return {0, std::make_unique<Target>(backEnd_)};
  }
  Created<IPathGeometry> CreatePathGeometry() override
  {
    if (backEnd_.Fails(FailAt::PathGeometry)) return {backEnd_.failCode, nullptr};
    return {0, std::make_unique<Path>(backEnd_)};
  }

private:
  RecordingBackEnd& backEnd_;
};

class WriteFactory : public IWriteFactory {
public:
  explicit WriteFactory(RecordingBackEnd& backEnd) : backEnd_(backEnd) {}
  Created<ITextFormat> CreateTextFormat(std::u16string_view family, float size) override
  {
    if (backEnd_.Fails(FailAt::TextFormat)) return {backEnd_.failCode, nullptr};
    auto format = std::make_unique<Format>();
    format->family = family;
    format->size = size;
    return {0, std::move(format)};
  }
  std::optional<PixelSize> MeasureText(const ITextFormat& format, std::u16string_view text,
                                       float maxWidth, float maxHeight) override
  {
    backEnd_.measuredWithin = {maxWidth, maxHeight};
    const float size = static_cast<const Format&>(format).size;
    return PixelSize{static_cast<float>(text.size()) * 0.5F * size, size};
  }

private:
  RecordingBackEnd& backEnd_;
};

template <class Interface, class Object, class... Arguments>
Created<Interface> Make(const RecordingBackEnd& backEnd, FailAt step, Arguments&... arguments)
{
  if (!backEnd.Fails(step)) return {0, std::make_unique<Object>(arguments...)};
  return {backEnd.emptyInsteadOfFailure ? 0 : backEnd.failCode, nullptr};
}

}  // namespace

Created<IDrawFactory> RecordingBackEnd::CreateDrawFactory()
{
  log.emplace_back("factory");
  return Make<IDrawFactory, DrawFactory>(*this, FailAt::DrawFactory, *this);
}

Created<IWriteFactory> RecordingBackEnd::CreateWriteFactory()
{
  log.emplace_back("write factory");
  return Make<IWriteFactory, WriteFactory>(*this, FailAt::WriteFactory, *this);
}

Created<IImagingFactory> RecordingBackEnd::CreateImagingFactory()
{
  log.emplace_back("imaging factory");
  return Make<IImagingFactory, IImagingFactory>(*this, FailAt::ImagingFactory);
}

std::optional<std::string> RecordingBackEnd::SystemMessage(ResultCode) const
{
  return systemMessage;
}

std::vector<std::string> RecordingBackEnd::Frame() const
{
  const auto last = std::find(log.rbegin(), log.rend(), "begin").base();
  return {last, std::find(last, log.end(), "end")};
}

int RecordingBackEnd::Count(const std::string& word) const
{
  return static_cast<int>(std::ranges::count_if(
      Frame(), [&](const std::string& line) { return line.starts_with(word); }));
}

std::string Exact(float value)
{
  std::array<char, 64> text{};
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value);
  return {text.data(), end};
}

std::string Exact(const Colour& colour)
{
  return Exact(colour.red) + " " + Exact(colour.green) + " " + Exact(colour.blue) + " " +
         Exact(colour.alpha);
}

}  // namespace hullwright::test
