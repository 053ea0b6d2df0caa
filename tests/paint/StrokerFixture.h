#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "paint/Stroker.h"

namespace hullwright::test {

using Points = std::vector<PixelPoint>;

/// Strokes black lines on white paper, and counts out what they should cover.
class StrokerFixture : public testing::Test {
protected:
  struct Paper {
    /// With some pixels between the rows.
    Paper(int w, int h, double ratio = 1.0, int between = 0)
        : width(w), height(h), stride(w + between)
    {
      pixels.resize(static_cast<std::size_t>(stride) * static_cast<std::size_t>(h));
      Clear();
      stroker.Begin({pixels.data(), stride, width, height}, ratio);
    }

    void Clear() { std::ranges::fill(pixels, 0xffffffffU); }

    void Draw(const Points& points, FigureKind kind, const Stroker::Pen& pen)
    {
      const std::array<std::size_t, 1> end = {points.size()};
      stroker.Draw({kind, points, end}, pen);
    }

    int Blue(int x, int y) const
    {
      const int place = y * stride + x;
      return static_cast<int>(pixels[static_cast<std::size_t>(place)] & 255U);
    }

    int width;
    int height;
    int stride;
    std::vector<std::uint32_t> pixels;
    Stroker stroker;
  };

  /// Differences of 255 that are let pass.
  struct Limits {
    double mean;
    double worst;
  };

  void Draw(const Points& points, float width, FigureKind kind = FigureKind::Line)
  {
    paper.Clear();
    paper.Draw(points, kind, {0xff000000U, 1.0F, width});
  }

  /// What a pixel is covered, from 0 to 255.
  int Cover(int x, int y) const { return 255 - paper.Blue(x, y); }

  /// The area that is covered, in pixels.
  double Ink() const
  {
    double sum = 0.0;
    for (int y = 0; y < paper.height; ++y) {
      for (int x = 0; x < paper.width; ++x) sum += Cover(x, y) / 255.0;
    }
    return sum;
  }

  /// Compares each pixel of an open line with its exact coverage. A line thinner than a pixel is a
  /// paler one of that width.
  void ExpectExact(const Points& line, float width, const Limits& limits)
  {
    Draw(line, width);
    const double radius = std::max(width, 1.0F) * 0.5;
    const double strength = std::min(width, 1.0F) * 255.0;
    double worst = 0.0;
    double sum = 0.0;
    int touched = 0;
    for (int y = 0; y < paper.height; ++y) {
      for (int x = 0; x < paper.width; ++x) {
        const double exact = ExactCover(line, radius, x, y) * strength;
        const double error = std::abs(Cover(x, y) - exact);
        worst = std::max(worst, error);
        sum += error;
        touched += exact > 0.0 ? 1 : 0;
      }
    }
    EXPECT_LE(worst, limits.worst)
        << "width " << width << " from " << line[0].x << ' ' << line[0].y;
    EXPECT_LE(sum / touched, limits.mean) << "width " << width;
  }

  Paper paper{80, 64};

private:
  static bool Covers(const Points& line, double radius, double x, double y)
  {
    for (std::size_t i = 1; i < line.size(); ++i) {
      const double dx = line[i].x - line[i - 1].x;
      const double dy = line[i].y - line[i - 1].y;
      const double length = std::hypot(dx, dy);
      const double px = x - line[i - 1].x;
      const double py = y - line[i - 1].y;
      const double along = (px * dx + py * dy) / length;
      const double across = (py * dx - px * dy) / length;
      if (along >= 0.0 && along <= length && std::abs(across) <= radius) return true;
      if (i > 1 && std::hypot(px, py) <= radius) return true;
    }
    return false;
  }

  static bool IsNear(const Points& line, double distance, double x, double y)
  {
    for (std::size_t i = 1; i < line.size(); ++i) {
      const double dx = line[i].x - line[i - 1].x;
      const double dy = line[i].y - line[i - 1].y;
      const double px = x - line[i - 1].x;
      const double py = y - line[i - 1].y;
      const double part = std::clamp((px * dx + py * dy) / (dx * dx + dy * dy), 0.0, 1.0);
      if (std::hypot(px - part * dx, py - part * dy) < distance) return true;
    }
    return false;
  }

  /// The part of a pixel that a line covers, of 256 points in it that share no row or column.
  static double ExactCover(const Points& line, double radius, int x, int y)
  {
    constexpr unsigned samples = 256;
    if (!IsNear(line, radius + 1.0, x + 0.5, y + 0.5)) return 0.0;
    unsigned inside = 0;
    for (unsigned i = 0; i < samples; ++i) {
      unsigned turned = 0;  // the bits of `i` from the last one to the first
      for (unsigned bit = 1; bit < samples; bit *= 2)
        turned = 2 * turned + ((i & bit) != 0 ? 1 : 0);
      const double sx = x + (i + 0.5) / samples;
      const double sy = y + (turned + 0.5) / samples;
      if (Covers(line, radius, sx, sy)) ++inside;
    }
    return static_cast<double>(inside) / samples;
  }
};

}  // namespace hullwright::test
