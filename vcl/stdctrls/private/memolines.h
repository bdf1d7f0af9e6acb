// TMemoLines: the text of a memo as a list of lines.
#pragma once

#include <string>
#include <vector>

#include "vcl/rtl/strings.h"

namespace vcl {

class TCustomMemo;

/// The lines are the memo's text, split when they are asked for and kept until the text changes.
/// Lines that are added stand with an end of line behind them. Between BeginUpdate and EndUpdate
/// changes collect here; the memo gets them with the last EndUpdate.
class TMemoLines : public TStrings {
 public:
  explicit TMemoLines(TCustomMemo& memo) : FMemo(memo) {}

  int Count() const override;
  std::string Strings(int index) const override;
  void SetStrings(int index, const std::string& text) override;
  TObject* Objects(int index) const override;
  void SetObjects(int index, TObject* object) override;
  void InsertObject(int index, const std::string& text, TObject* object) override;
  void Delete(int index) override;
  void Clear() override;
  /// The memo's text is another now.
  void TextChanged();

 protected:
  void SetUpdateState(bool updating) override;

 private:
  struct TSpan {
    std::size_t Start;  ///< Of the line.
    std::size_t End;    ///< Of the line without its end of line.
    std::size_t Next;   ///< The next line's start.
  };
  template <class S>
  static TSpan FindLine(const S& text, int index);
  const std::vector<std::string>& Lines() const;
  /// Replaces a part of the memo's text, which `choose` picks for the line.
  template <class F>
  void Replace(int index, const F& choose, const std::string& with);

  TCustomMemo& FMemo;
  mutable std::vector<std::string> FLines;
  mutable bool FValid = false;
  bool FChanged = false;  // In an update: the memo has not got the lines.
};

}  // namespace vcl
