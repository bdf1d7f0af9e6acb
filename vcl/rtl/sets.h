// A set of values of an enumeration.
#pragma once

#include <cstdint>
#include <initializer_list>

namespace vcl {

/// A set of values of the enumeration E, whose ordinals run from 0 to at most 31.
template <class E>
class TSet {
 public:
  using Element = E;

  constexpr TSet() = default;
  constexpr TSet(std::initializer_list<E> values) {
    for (E value : values) FBits |= Bit(value);
  }
  /// The set whose bit i says whether the value of ordinal i is in it.
  static constexpr TSet FromBits(std::uint32_t bits) {
    TSet set;
    set.FBits = bits;
    return set;
  }

  constexpr std::uint32_t Bits() const { return FBits; }
  constexpr bool Has(E value) const { return (FBits & Bit(value)) != 0; }
  constexpr bool Empty() const { return FBits == 0; }
  constexpr void Include(E value) { FBits |= Bit(value); }
  constexpr void Exclude(E value) { FBits &= ~Bit(value); }

  constexpr TSet& operator+=(TSet other) { return FBits |= other.FBits, *this; }
  constexpr TSet& operator-=(TSet other) { return FBits &= ~other.FBits, *this; }
  friend constexpr TSet operator+(TSet a, TSet b) { return a += b; }
  friend constexpr TSet operator-(TSet a, TSet b) { return a -= b; }
  /// The intersection.
  friend constexpr TSet operator*(TSet a, TSet b) { return FromBits(a.FBits & b.FBits); }
  friend constexpr bool operator==(TSet a, TSet b) = default;

 private:
  static constexpr std::uint32_t Bit(E value) {
    return std::uint32_t{1} << static_cast<unsigned>(value);
  }
  std::uint32_t FBits = 0;
};

}  // namespace vcl
