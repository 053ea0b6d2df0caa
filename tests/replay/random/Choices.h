#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <span>
#include <string>

namespace hullwright::replay {

/// Where a script that nobody wrote takes its choices from.
class IChoices {
public:
  IChoices() = default;
  IChoices(const IChoices&) = delete;
  IChoices& operator=(const IChoices&) = delete;
  virtual ~IChoices() = default;

  /// A number from 0 to just below `limit`, which is at least 1.
  virtual int Below(int limit) = 0;

  /// A coordinate, an angle, or a number that is typed.
  virtual double Coordinate() = 0;
};

/// Choices at random, the same for the same seed. Coordinates are those of vessels.
class RandomChoices : public IChoices {
public:
  explicit RandomChoices(unsigned seed) : random_(seed) {}
  int Below(int limit) override;
  double Coordinate() override;

private:
  std::mt19937 random_;
};

/// Choices that bytes stand for, zeros behind their end. Every eighth coordinate is one that no
/// vessel has.
class ByteChoices : public IChoices {
public:
  explicit ByteChoices(std::span<const std::uint8_t> bytes) : left_(bytes) {}
  int Below(int limit) override;
  double Coordinate() override;

  bool IsAtEnd() const { return left_.empty(); }

  /// The next bytes as they are, as many as are left.
  std::string Take(std::size_t length);

private:
  unsigned Byte();

  std::span<const std::uint8_t> left_;
};

}  // namespace hullwright::replay
