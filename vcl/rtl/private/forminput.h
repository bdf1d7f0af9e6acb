// The binary form of a form file, read value by value with every length checked.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/formformat.h"

namespace vcl {

class TStream;

/// An EReadError whose message names its place.
class EPlacedReadError : public EReadError {
 public:
  using EReadError::EReadError;
};

/// The rest of a stream, as values of a form file. All methods raise EPlacedReadError for bytes
/// that are not what they read.
class TFormInput {
 public:
  explicit TFormInput(TStream& stream);
  /// Puts the stream's position behind what was read.
  void Finish();

  /// Tells the line of an offset; see TReader::SetLineOf.
  std::function<int(std::int64_t)> LineOf;
  /// Whose value is being read ("Button1.Font.Color"), for messages.
  std::string Context;

  /// Where the value or name that was read last begins.
  std::size_t Mark() const { return FMark; }
  std::size_t Position() const { return FPosition; }
  void SetPosition(std::size_t position) { FPosition = position; }
  bool AtEnd() const { return FPosition == FBytes.size(); }
  /// The bytes from one position up to another.
  std::string Slice(std::size_t from, std::size_t to) const {
    return FBytes.substr(from, to - from);
  }

  /// "Line 12: Button1.Colour: " or the same with the offset.
  std::string Place(std::size_t at) const;
  [[noreturn]] void Fail(std::string_view text) const { FailAt(FMark, text); }
  [[noreturn]] void FailAt(std::size_t at, std::string_view text) const;

  TValueType NextValue();
  /// Takes the next value's sort, which must be `wanted`.
  void Take(TValueType wanted);
  bool EndOfList() { return NextValue() == TValueType::vaNull; }

  void ReadSignature();
  TFormHeading ReadHeading();
  /// The name of a property.
  std::string ReadName();
  std::int64_t ReadInteger();
  double ReadFloat();
  bool ReadBoolean();
  std::string ReadString();
  std::string ReadIdent();
  std::vector<std::string> ReadSet();
  std::string_view ReadBinary();
  /// Passes over a value of any sort.
  void SkipValue();

  /// Counts how deep objects and lists stand in each other while it lives, and refuses too many.
  class TLevel {
   public:
    explicit TLevel(TFormInput& input);
    ~TLevel() { --FInput.FDepth; }
    TLevel(const TLevel&) = delete;
    TLevel& operator=(const TLevel&) = delete;

   private:
    TFormInput& FInput;
  };

 private:
  std::string_view Bytes(std::size_t count);
  std::uint8_t Byte() { return static_cast<std::uint8_t>(Bytes(1).front()); }
  template <class T>
  T Number();
  std::string ShortText() { return std::string(Bytes(Byte())); }
  std::string_view LongText() { return Bytes(Number<std::uint32_t>()); }
  TValueType TakeSort();
  void SkipList();
  void SkipCollection();
  [[noreturn]] void FailSort(std::string_view wanted, TValueType found) const;

  TStream& FStream;
  std::int64_t FBase;
  std::string FBytes;
  std::size_t FPosition = 0;
  std::size_t FMark = 0;
  int FDepth = 0;
};

}  // namespace vcl
