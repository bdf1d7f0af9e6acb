// TCustomRichEdit and TRichEdit: text whose characters and paragraphs have looks of their own.
#pragma once

#include <memory>
#include <string>

#include "vcl/rtl/systemmacros.h"
#include "vcl/stdctrls/memo.h"
#include "vcl/stdctrls/richattributes.h"

namespace vcl {

class TStream;

enum TSearchType { stWholeWord, stMatchCase };
using TSearchTypes = TSet<TSearchType>;

/// Sender, beginning and end of the protected text that the user is about to change, and whether he
/// may, which comes as false.
using TRichEditProtectChange = TEvent<TObject*, int, int, bool&>;
/// Sender, the rectangle that the text would need, in the parent.
using TRichEditResizeEvent = TEvent<TObject*, const TRect&>;
template <>
inline constexpr TEventText EventText<TRichEditResizeEvent>{
    "TRichEditResizeEvent", "vcl::TObject* sender, const vcl::TRect& rect"};

/// The system's rich edit. Positions count UTF-16 units, and an end of line as 1. The looks are
/// kept when the window is made anew; form files hold the lines without them.
class VCL_API TCustomRichEdit : public TCustomMemo {
 public:
  explicit TCustomRichEdit(TComponent* owner);
  ~TCustomRichEdit() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// How text without a look of its own looks: as Font until it is changed.
  TTextAttributes& DefAttributes() const { return *FDefAttributes; }
  /// How the selection looks, and what is typed next.
  TTextAttributes& SelAttributes() const { return *FSelAttributes; }
  /// The paragraphs that the selection touches.
  TParaAttributes& Paragraph() const { return *FParagraph; }
  bool HideScrollBars() const { return FHideScrollBars; }
  /// False: scroll bars that have nothing to scroll stay, disabled.
  void SetHideScrollBars(bool hide);
  bool PlainText() const { return FPlainText; }
  /// True: what is loaded and saved is text in UTF-8, without looks.
  void SetPlainText(bool plain) { FPlainText = plain; }
  std::string SelText() const;

  // Loading and saving (richedit_files.cpp). With PlainText it is text, else RTF; what is loaded
  // and does not begin as RTF is taken as text.
  /// Raises EReadError for RTF that is cut off; the edit then keeps what it had.
  void LoadFromStream(TStream& stream);
  void SaveToStream(TStream& stream) const;
  /// Raise, with the file's name, EFOpenError resp. EFCreateError beside that.
  void LoadFromFile(const std::string& fileName);
  void SaveToFile(const std::string& fileName) const;
  /// The text with its looks.
  std::string Rtf() const;
  /// Raises EReadError for what is no RTF, or is cut off.
  void SetRtf(const std::string& rtf);
  /// The position of the text between `start` and `length` positions behind it; -1 when it is not
  /// there.
  int FindText(const std::string& text, int start, int length, TSearchTypes options = {}) const;

  void SetTextBuf(const char* text) override;
  /// Sends EM_SETCHARFORMAT with a CHARFORMAT2W; for the attributes.
  void ApplyCharFormat(std::uintptr_t range, void* format);

  /// The selection, or what it looks like, has changed. The control must not be freed here: the
  /// system works on with it behind this.
  TNotifyEvent OnSelectionChange;
  /// The user is about to change protected text: the handler may allow it.
  TRichEditProtectChange OnProtectChange;
  /// The text needs another height than the edit has.
  TRichEditResizeEvent OnResizeRequest;

 protected:
  int LineEndUnits() const override { return 1; }
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void DestroyWnd() override;
  void Dispatch(TMessage& message) override;

 private:
  void ApplyFont();
  void ApplyColor();
  void ListenToWindow(bool listen);
  bool NotifyFromWindow(TMessage& message);
  void AskProtected(TMessage& message);
  void StreamIn(const std::string& rtf);

  std::unique_ptr<TTextAttributes> FDefAttributes;
  std::unique_ptr<TTextAttributes> FSelAttributes;
  std::unique_ptr<TParaAttributes> FParagraph;
  bool FHideScrollBars = true;
  bool FPlainText = false;
  bool FFormatted = false;   // Some text has a look of its own.
  std::string FKeptRtf;      // While there is no window.
  std::string FKeptDefault;  // The CHARFORMAT2W of DefAttributes, once it is not the font's.
};

/// A rich edit for forms.
class VCL_API TRichEdit : public TCustomRichEdit {
 public:
  explicit TRichEdit(TComponent* owner) : TCustomRichEdit(owner) { HearOnlyAsked<TRichEdit>(); }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
