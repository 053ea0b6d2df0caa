#include "paint/CoverageMask.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "paint/PixelBlend.h"

namespace hullwright {
namespace {

constexpr int blockSize = 4;

/// No fewer than the blocks that cover an area.
std::size_t BlocksOf(const PixelArea& area)
{
  const auto perRow = static_cast<std::size_t>(area.Width()) / blockSize + 1;
  return (static_cast<std::size_t>(area.Height()) + 1) * perRow;  // rows are added in pairs
}

/// Takes away what the lanes behind the last pixel of a run cover.
Four CutOff(Four cover, int lastLane)
{
  constexpr float steep = 1e6F;
  const Four room = Four(static_cast<float>(lastLane) + 0.5F) - Four::Steps();
  return cover.Min((room * Four(steep)).Max(Four(0.0F)));
}

/// What a segment covers, by the kind of its ends.
constexpr auto roundCover = [](const SegmentBand& band, const SegmentBand::Distances& at) {
  return band.CoverRound(at);
};
constexpr auto flatCover = [](const SegmentBand& band, const SegmentBand::Distances& at) {
  return band.CoverFlat(at);
};

/// Blends into the last pixels of a picture, which are fewer than a block.
void BlendLast(const PixelBlend& blend, std::span<std::uint32_t> pixels, const Covers& covers)
{
  std::array<std::uint32_t, blockSize> block = {};
  std::ranges::copy(pixels, block.begin());
  blend(block.data(), covers);
  std::copy_n(block.begin(), pixels.size(), pixels.begin());
}

}  // namespace

void CoverageMask::Begin(const PixelView& picture, const PixelArea& area, float alpha,
                         std::size_t segments)
{
  constexpr std::size_t blocksOfSegment = 3;
  if (isOpen_) Forget();
  isOpen_ = true;
  // A segment names more than that, most of which its neighbours name as well.
  isDense_ = BlocksOf(area) < blocksOfSegment * segments;
  picture_ = picture;
  area_ = area;
  full_ = 255.0F * alpha;
  // A mask as small as the line keeps to the processor's cache. The last block of a row reaches
  // out.
  stride_ = area.Width() + blockSize - 1;
  const auto size = static_cast<std::size_t>(stride_) * static_cast<std::size_t>(area.Height());
  if (bytes_.size() < size) bytes_.resize(size);
  if (isDense_ && blocks_.size() < BlocksOf(area)) blocks_.resize(2 * BlocksOf(area));
  // The picture is too large for the cache, and `Paint` comes soon. A dense line is narrow, so that
  // the ends of its rows are most of them. (A function around the fetch alone would be left out by
  // the compiler, as one that has no effect.)
  for (int row = area.firstRow; isDense_ && row <= area.lastRow; ++row) {
    const std::uint32_t* const first = picture.pixels + row * picture.stride + area.firstX;
    __builtin_prefetch(first, 1);
    __builtin_prefetch(first + area.Width(), 1);
  }
}

/// Its blocks would be painted with the next line, in a picture that may be smaller by then.
void CoverageMask::Forget()
{
  std::ranges::fill(bytes_, std::uint8_t{0});
  count_ = 0;
}

void CoverageMask::Reserve(const PixelArea& area)
{
  // A line that runs to and fro would name the same blocks over and over.
  if (count_ > 2 * BlocksOf(area_)) NameBlocksOnce();
  const std::size_t most = count_ + BlocksOf(area);
  if (blocks_.size() < most) blocks_.resize(2 * most);
}

void CoverageMask::NameBlocksOnce()
{
  count_ = 0;
  for (int row = 0; row < area_.Height(); ++row) {
    for (int x = 0; x < area_.Width(); x += blockSize) {
      const int byte = row * stride_ + x;
      Covers covers;
      std::memcpy(covers.data(), bytes_.data() + byte, covers.size());
      if (covers == Covers{}) continue;
      const std::ptrdiff_t pixel = (area_.firstRow + row) * picture_.stride + area_.firstX + x;
      blocks_[count_++] = {static_cast<std::uint32_t>(byte), static_cast<std::uint32_t>(pixel)};
    }
  }
}

void CoverageMask::AddLine(std::span<const PixelPosition> line, float radius, bool isClosed)
{
  for (std::size_t i = 1; i < line.size(); ++i) {
    const bool isFirst = i == 1;
    const bool isLast = i + 1 == line.size();
    AddSegment({line[i - 1], line[i], radius, isFirst && !isClosed, isLast && !isClosed});
  }
}

void CoverageMask::Add(const StrokeSegment& segment) { AddSegment(segment); }

inline void CoverageMask::AddSegment(const StrokeSegment& segment)
{
  const SegmentWay way(segment);
  if (AddDab(segment, way)) return;
  if (ThinBand::Serves(segment.radius, full_)) {
    AddThin(segment, way);
  } else {
    AddAny(segment, way);
  }
}

void CoverageMask::AddAny(const StrokeSegment& segment, const SegmentWay& way)
{
  const SegmentRuns runs(segment, way);
  const PixelArea area = runs.reach.Within(area_);
  if (area.IsEmpty()) return;
  if (!isDense_) Reserve(area);
  const SegmentBand band(segment, way, full_);
  if (segment.HasFlatEnd()) {
    AddRows(band, runs, area, flatCover);
  } else {
    AddRows(band, runs, area, roundCover);
  }
}

// Inlined, so that the numbers of the band stay in registers.
template <bool isFlat>
inline __attribute__((always_inline)) void CoverageMask::AddPairs(ThinBand band, RowPair rows,
                                                                  const PixelArea& area, int blocks)
{
  const int lastX = std::max(area.Width() - blocks * blockSize, 0);
  const auto pictureStride = static_cast<int>(picture_.stride);
  int byte = (area.firstRow - area_.firstRow) * stride_ + area.firstX - area_.firstX;
  int pixel = area.firstRow * pictureStride + area.firstX;
  std::uint8_t* const bytes = bytes_.data();
  const bool isDense = isDense_;
  Block* next = blocks_.data() + count_;
  int rowsLeft = area.Height();
  while (true) {
    const PairStart<Eight> start = band.StartOf(rows, lastX);
    const int upper = byte + start.upperX;
    const int lower = byte + start.lowerX + stride_;
    const int upperPixel = pixel + start.upperX;
    const int lowerPixel = pixel + start.lowerX + pictureStride;
    __builtin_prefetch(picture_.pixels + upperPixel, 1);  // `Paint` comes soon
    __builtin_prefetch(picture_.pixels + lowerPixel, 1);
    ThinBand::Distances distances{start.along, start.across};
    for (int x = 0; x < blocks * blockSize; x += blockSize) {
      band.Cover<isFlat>(distances).RaiseBytes(bytes + upper + x, bytes + lower + x);
      band.Advance(distances);
      if (isDense) continue;
      *next++ = {static_cast<std::uint32_t>(upper + x), static_cast<std::uint32_t>(upperPixel + x)};
      *next++ = {static_cast<std::uint32_t>(lower + x), static_cast<std::uint32_t>(lowerPixel + x)};
    }
    rowsLeft -= 2;
    if (rowsLeft <= 0) break;
    // A last row by itself makes a pair with the one before.
    const int step = std::min(rowsLeft, 2);
    rows.Move();
    if (step == 2) rows.Move();
    byte += step * stride_;
    pixel += step * pictureStride;
  }
  count_ = static_cast<std::size_t>(next - blocks_.data());
}

void CoverageMask::AddThin(const StrokeSegment& segment, const SegmentWay& way)
{
  const float longer = std::max(std::abs(way.dx), std::abs(way.dy));
  if (longer <= ThinBand::longest) {
    if (!AddShort(segment, way)) AddAny(segment, way);
    return;
  }
  // Where two parts meet, each covers a pixel as the whole does, or less.
  const int parts = static_cast<int>(longer / ThinBand::longest) + 1;
  const SegmentWay step = way.PartOf(parts);
  const auto cut = [&segment, &step](int i) {
    const auto steps = static_cast<float>(i);
    return PixelPosition{segment.from.x + step.dx * steps, segment.from.y + step.dy * steps};
  };
  for (int i = 0; i < parts; ++i) {
    const bool isFirst = i == 0;
    const bool isLast = i + 1 == parts;
    const StrokeSegment part{cut(i), isLast ? segment.to : cut(i + 1), segment.radius,
                             isFirst && segment.flatFrom, isLast && segment.flatTo};
    if (!AddShort(part, step)) AddAny(part, step);
  }
}

// Inlined as well, like what follows: a line that is far away has nothing else.
inline __attribute__((always_inline)) bool CoverageMask::AddDab(const StrokeSegment& segment,
                                                                const SegmentWay& way)
{
  constexpr float longest = blockSize - 2;  // a longer one seldom fits
  if (std::max(std::abs(way.dx), std::abs(way.dy)) > longest) return false;
  const float limit = SegmentWay::MostLimitOf(segment.radius);
  const PixelArea area = segment.ReachOf(limit).Within(area_);
  if (area.IsEmpty()) return true;
  const int x = std::min(area.firstX, area_.lastX + 1 - blockSize);
  const int row = std::min(area.firstRow, area_.lastRow + 1 - blockSize);
  if (std::max(area.Width(), area.Height()) > blockSize || x < area_.firstX ||
      row < area_.firstRow) {
    return false;
  }
  const SegmentBand band(segment, way, full_);
  if (segment.HasFlatEnd()) {
    AddSquare(band, x, row, flatCover);
  } else {
    AddSquare(band, x, row, roundCover);
  }
  return true;
}

template <class Cover>
inline __attribute__((always_inline)) void CoverageMask::AddSquare(const SegmentBand& band, int x,
                                                                   int row, Cover cover)
{
  SegmentBand::Distances distances =
      band.At(static_cast<float>(x) + 0.5F, static_cast<float>(row) + 0.5F);
  // All four before the first byte is written, which the compiler must take for a part of the band.
  std::array<Four, blockSize> rows = {Four(0.0F), Four(0.0F), Four(0.0F), Four(0.0F)};
  for (Four& four : rows) {
    four = cover(band, distances);
    band.MoveDown(distances);
  }
  if (!isDense_) Reserve({row, row + blockSize - 1, x, x + blockSize - 1});
  std::uint8_t* const bytes = bytes_.data();
  int byte = (row - area_.firstRow) * stride_ + x - area_.firstX;
  std::ptrdiff_t pixel = row * picture_.stride + x;
  for (const Four& four : rows) {
    four.RaiseBytes(bytes + byte);
    if (!isDense_) {
      blocks_[count_++] = {static_cast<std::uint32_t>(byte), static_cast<std::uint32_t>(pixel)};
    }
    byte += stride_;
    pixel += picture_.stride;
  }
}

bool CoverageMask::AddShort(const StrokeSegment& segment, const SegmentWay& way)
{
  const SegmentRuns runs(segment, way);
  const PixelArea area = runs.reach.Within(area_);
  if (area.IsEmpty()) return true;
  const int blocks = runs.BlocksIn(area);
  if (area.firstX + blocks * blockSize > picture_.width || area.Height() == 1) return false;
  if (!isDense_) Reserve(area);
  const ThinBand band(segment, way, full_);
  const RowPair rows = band.FirstOf(area, runs);
  if (segment.HasFlatEnd()) {
    AddPairs<true>(band, rows, area, blocks);
  } else {
    AddPairs<false>(band, rows, area, blocks);
  }
  return true;
}

template <class Cover>
void CoverageMask::AddRows(const SegmentBand& theBand, SegmentRuns runs, const PixelArea& area,
                           Cover cover)
{
  const SegmentBand band = theBand;  // which no byte written below can be part of
  const int blocks = runs.BlocksIn(area);
  const auto firstX = static_cast<float>(area.firstX);
  const auto lastX = std::max(static_cast<float>(area.lastX + 1 - blocks * blockSize), firstX);
  const int lastWhole = picture_.width - blockSize;
  const std::ptrdiff_t step = isDense_ ? 0 : 1;
  std::uint8_t* const bytes = bytes_.data();
  Block* next = blocks_.data() + count_;
  for (int row = area.firstRow; row <= area.lastRow; ++row) {
    const float y = static_cast<float>(row) + 0.5F;
    int x = static_cast<int>(std::min(std::max(runs.BeginOf(y), firstX), lastX));
    SegmentBand::Distances distances = band.At(static_cast<float>(x) + 0.5F, y);
    int byte = (row - area_.firstRow) * stride_ + x - area_.firstX;
    std::ptrdiff_t pixel = row * picture_.stride + x;
    __builtin_prefetch(picture_.pixels + pixel, 1);  // `Paint` comes soon
    for (int left = blocks; left > 0; --left) {
      Four covered = cover(band, distances);
      if (x > lastWhole) covered = CutOff(covered, picture_.width - 1 - x);
      covered.RaiseBytes(bytes + byte);
      *next = {static_cast<std::uint32_t>(byte), static_cast<std::uint32_t>(pixel)};
      next += step;
      band.Advance(distances);
      x += blockSize;
      byte += blockSize;
      pixel += blockSize;
    }
  }
  count_ = static_cast<std::size_t>(next - blocks_.data());
}

void CoverageMask::Paint(std::uint32_t colour)
{
  if (isDense_) NameBlocksOnce();
  const PixelBlend blend(colour);
  const std::ptrdiff_t pixels = picture_.stride * (picture_.height - 1) + picture_.width;
  std::uint8_t* const mask = bytes_.data();
  std::uint32_t* const picture = picture_.pixels;
  for (const Block& block : std::span(blocks_.data(), count_)) {
    std::uint8_t* const bytes = mask + block.bytes;
    std::uint32_t* const place = picture + block.pixels;
    Covers covers;
    std::memcpy(covers.data(), bytes, covers.size());
    if (covers == Covers{}) continue;
    std::memset(bytes, 0, covers.size());
    const std::ptrdiff_t left = pixels - static_cast<std::ptrdiff_t>(block.pixels);
    if (left >= blockSize) {
      blend(place, covers);
    } else {
      BlendLast(blend, {place, static_cast<std::size_t>(left)}, covers);
    }
  }
  count_ = 0;
  isOpen_ = false;
}

}  // namespace hullwright
