#include "paint/CoverageMask.h"

#include <array>
#include <cstring>
#include <span>

#include "paint/PixelBlend.h"

namespace hullwright {
namespace {

constexpr int blockSize = 4;

/// No fewer than the blocks that cover an area.
std::size_t BlocksOf(const PixelArea& area)
{
  const auto perRow = static_cast<std::size_t>(area.Width()) / blockSize + 1;
  return static_cast<std::size_t>(area.Height()) * perRow;
}

/// Takes away what the lanes behind the last pixel of a run cover.
Four CutOff(Four cover, int lastLane)
{
  constexpr float steep = 1e6F;
  const Four room = Four(static_cast<float>(lastLane) + 0.5F) - Four::Steps();
  return cover.Least((room * Four(steep)).Most(Four(0.0F)));
}

/// Blends into the last pixels of a picture, which are fewer than a block.
void BlendLast(const PixelBlend& blend, std::span<std::uint32_t> pixels, const Covers& covers)
{
  std::array<std::uint32_t, blockSize> block = {};
  std::ranges::copy(pixels, block.begin());
  blend(block.data(), covers);
  std::copy_n(block.begin(), pixels.size(), pixels.begin());
}

}  // namespace

void CoverageMask::Begin(const PixelView& picture, const PixelArea& area, float alpha)
{
  picture_ = picture;
  area_ = area;
  full_ = 255.0F * alpha;
  // A mask as small as the line keeps to the processor's cache. The last block of a row reaches
  // out.
  stride_ = area.Width() + blockSize - 1;
  const auto size = static_cast<std::size_t>(stride_) * static_cast<std::size_t>(area.Height());
  if (bytes_.size() < size) bytes_.resize(size);
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

void CoverageMask::Add(const StrokeSegment& segment)
{
  const SegmentBand band(segment, full_);
  const PixelArea area = band.Reach().Within(area_);
  if (area.IsEmpty()) return;
  Reserve(area);
  if (segment.flatFrom || segment.flatTo) {
    AddRows(band, area, [](const SegmentBand& b, const auto& at) { return b.CoverFlat(at); });
  } else {
    AddRows(band, area, [](const SegmentBand& b, const auto& at) { return b.CoverRound(at); });
  }
}

template <class Cover>
void CoverageMask::AddRows(const SegmentBand& theBand, const PixelArea& area, Cover cover)
{
  const SegmentBand band = theBand;  // which no byte written below can be part of
  const auto firstX = static_cast<float>(area.firstX);
  const auto lastX = static_cast<float>(area.lastX);
  Run run{area.firstRow, 0, 0, blocks_.data() + count_};
  for (; run.row <= area.lastRow; ++run.row) {
    const float y = static_cast<float>(run.row) + 0.5F;
    const float middle = band.MiddleOf(y);
    run.first = static_cast<int>(std::max(middle - band.HalfRun() + 0.5F, firstX));
    run.last = static_cast<int>(std::min(middle + band.HalfRun() - 0.5F, lastX));
    if (run.first > run.last) continue;
    const float x = static_cast<float>(run.first) + 0.5F;
    if (band.IsBeside(x, y, static_cast<float>(run.last - run.first))) {
      AddRun(run, band, [&band](const auto& at) { return band.CoverBeside(at); });
    } else {
      AddRun(run, band, [&band, cover](const auto& at) { return cover(band, at); });
    }
  }
  count_ = static_cast<std::size_t>(run.next - blocks_.data());
}

template <class Cover>
void CoverageMask::AddRun(Run& run, const SegmentBand& band, Cover cover)
{
  const float x = static_cast<float>(run.first) + 0.5F;
  const float y = static_cast<float>(run.row) + 0.5F;
  const bool atEdge = run.last == area_.lastX;
  SegmentBand::Distances distances = band.At(x, y);
  int byte = (run.row - area_.firstRow) * stride_ + run.first - area_.firstX;
  std::ptrdiff_t pixel = run.row * picture_.stride + run.first;
  // The picture is too large for the cache, and `Paint` comes soon.
  __builtin_prefetch(picture_.pixels + pixel, 1);
  for (int left = run.last - run.first; left >= 0; left -= blockSize) {
    const Four covered =
        atEdge && left < blockSize - 1 ? CutOff(cover(distances), left) : cover(distances);
    covered.RaiseBytes(bytes_.data() + byte);
    *run.next++ = {static_cast<std::uint32_t>(byte), static_cast<std::uint32_t>(pixel)};
    band.Advance(distances);
    byte += blockSize;
    pixel += blockSize;
  }
}

void CoverageMask::Paint(std::uint32_t colour)
{
  const PixelBlend blend(colour);
  const std::ptrdiff_t pixels = picture_.stride * (picture_.height - 1) + picture_.width;
  for (std::size_t i = 0; i < count_; ++i) {
    std::uint8_t* const bytes = bytes_.data() + blocks_[i].bytes;
    std::uint32_t* const place = picture_.pixels + blocks_[i].pixels;
    Covers covers;
    std::memcpy(covers.data(), bytes, covers.size());
    if (covers == Covers{}) continue;
    std::memset(bytes, 0, covers.size());
    const std::ptrdiff_t left = pixels - static_cast<std::ptrdiff_t>(blocks_[i].pixels);
    if (left >= blockSize) {
      blend(place, covers);
    } else {
      BlendLast(blend, {place, static_cast<std::size_t>(left)}, covers);
    }
  }
  count_ = 0;
}

}  // namespace hullwright
