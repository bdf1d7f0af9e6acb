// TDialogForm: the form that the package's own dialogs are shown in.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "qel/core/Qelbuttondetails.h"
#include "qel/dialogs/Qelformdialog.h"
#include "vcl/forms/forms.h"
#include "vcl/graphics/picture.h"
#include "vcl/stdctrls/bitbtn.h"

namespace qel {

/// A form, modal or one that stays open: a picture at the left, rows of text and controls beside
/// it, and a row of buttons below. It has its monitor's dots per inch from the beginning, so that
/// what is put in is measured in them, and takes its size from what it holds when it is shown.
class TDialogForm : public vcl::TForm {
 public:
  /// Made for the dialog, whose title, background and help it has; it closes when that is freed.
  explicit TDialogForm(TQELFormDialog& dialog);
  ~TDialogForm() override;

  /// Puts a picture at the left, at most a quarter of the work area wide and high; nothing for an
  /// empty one.
  void AddPicture(const vcl::TPicture& picture);
  /// Adds a row of text, wrapped at half the work area's width. One that is too high for the form
  /// scrolls; an empty one adds nothing.
  void AddText(const std::string& text);
  /// Adds a row with a control, which wants so many pixels; it becomes as wide as the widest row.
  template <class T>
  T* AddRow(int width, int height) {
    auto* control = new T(this);
    Put(*control, width, height);
    return control;
  }
  /// The width and height that a check box or radio button with the caption wants.
  vcl::TSize SizeOfChoice(const std::string& caption) const;
  /// Adds a button at the right of the others, and returns it; null for details that show none, as
  /// they are not visible or have neither caption nor glyph. `result`, above 0, is its answer.
  vcl::TBitBtn* AddButton(const TQELButtonDetails& details, int result);
  /// Has the button do that, and leave the form open, instead of closing it.
  void SetAct(const vcl::TBitBtn& button, std::function<void()> act);
  /// What is copied as the form's text, when that is not what AddText has put there.
  void SetCopiedText(const std::string& text) { FText = text; }
  /// The button with that answer, if it is shown; else null.
  vcl::TBitBtn* ButtonWith(int result) const;
  int ButtonCount() const { return static_cast<int>(FButtons.size()); }
  /// The answer of the button at the index from 0.
  int ResultAt(int index) const { return FButtons[static_cast<std::size_t>(index)].Result; }

  /// Shows the form and returns the answer, 0 when it was closed or its dialog freed.
  int Run();
  /// Shows the form, which must have been made by `new`, in front of the active form's window and
  /// lets the user go on there. It frees itself when it has been closed, or that window has ended.
  void StayOpen();
  /// Closes the form with an answer, as if it had been chosen, and asks nothing.
  void Finish(int result);
  /// Presses the button, which may have a question to ask first.
  void Press(const vcl::TBitBtn& button);

 protected:
  /// Null once it has been freed.
  TQELFormDialog* Dialog() const { return FDialog; }
  void DoClose(vcl::TCloseAction& action) override;
  void Dispatch(vcl::TMessage& message) override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void PaintWindow(HDC dc) override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  struct TRow {
    vcl::TControl* Control;
    vcl::TSize Size;
  };
  struct TChoice {
    vcl::TBitBtn* Button;
    int Result;
    std::string Question;       // To be asked first; empty for none.
    std::function<void()> Act;  // Instead of closing the form; empty for closing it.
  };
  void Put(vcl::TControl& control, int width, int height);
  void SetBack(TQELCustomBackground* background);
  int WidthOfButton(const vcl::TBitBtn& button) const;
  vcl::TSize LayRows();
  void LayButtons(int width, int top);
  void Lay();
  void PlaceOverForm();
  bool HasCancelButton() const;
  bool EditHasSelection() const;
  void CopyToClipboard() const;

  TQELFormDialog* FDialog;
  TQELCustomBackground* FBackground = nullptr;
  vcl::TRect FOver;  // Where the form is to stand in the middle of.
  vcl::TRect FArea;  // The work area around that.
  vcl::TControl* FPicture = nullptr;
  std::vector<TRow> FRows;
  std::vector<TChoice> FButtons;
  std::string FText;
  int FResult = 0;
};

}  // namespace qel
