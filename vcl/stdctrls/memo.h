// TCustomMemo and TMemo: text that the user edits, in many lines.
#pragma once

#include <memory>

#include "vcl/rtl/strings.h"
#include "vcl/stdctrls/edit.h"
#include "vcl/stdctrls/scrollstyle.h"

namespace vcl {

class TMemoLines;

/// An edit of several lines.
class VCL_API TCustomMemo : public TCustomEdit {
 public:
  explicit TCustomMemo(TComponent* owner);
  ~TCustomMemo() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TAlignment Alignment() const { return FAlignment; }
  /// Where the lines stand between left and right.
  void SetAlignment(TAlignment alignment);
  /// The lines of the text as its ends of line divide it; where WordWrap breaks a line for show
  /// does not count. Lines carry no objects: setting one raises EInvalidOperation.
  TStrings* Lines() const;
  void SetLines(const TStrings* lines);
  TScrollStyle ScrollBars() const { return FScrollBars; }
  /// Which scroll bars there are.
  void SetScrollBars(TScrollStyle scrollBars);
  bool WantReturns() const { return FWantReturns; }
  /// False: Enter goes to the form's default button; Ctrl+Enter begins a line.
  void SetWantReturns(bool want) { FWantReturns = want; }
  bool WantTabs() const { return FWantTabs; }
  /// True: Tab is a character of the text instead of leaving the memo.
  void SetWantTabs(bool want) { FWantTabs = want; }
  bool WordWrap() const { return FWordWrap; }
  /// Lines that are too long go on in the next row. Without effect beside a horizontal scroll bar.
  void SetWordWrap(bool wordWrap);

 protected:
  bool MultiLine() const override { return true; }
  /// How many positions of the window's text an end of line takes.
  virtual int LineEndUnits() const { return 2; }
  void Change() override;
  void CreateParams(TCreateParams& params) override;
  void WndProc(TMessage& message) override;
  void KeyPress(char32_t& key) override;

 private:
  friend class TMemoLines;
  DWORD WrapAndScrollStyle() const;

  std::unique_ptr<TMemoLines> FLines;
  TAlignment FAlignment = taLeftJustify;
  TScrollStyle FScrollBars = ssNone;
  bool FWantReturns = true;
  bool FWantTabs = false;
  bool FWordWrap = true;
};

/// An edit of several lines, for forms.
class VCL_API TMemo : public TCustomMemo {
 public:
  explicit TMemo(TComponent* owner) : TCustomMemo(owner) { HearOnlyAsked<TMemo>(); }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
