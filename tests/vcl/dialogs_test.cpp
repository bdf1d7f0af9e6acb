// The system's dialogs, messages and questions, and the controls of an application's frame.
#include <filesystem>
#include <fstream>

#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

using testinput::TBoxAnswer;

class Dialogs : public TStandardForm {
 protected:
  Dialogs() { ShowForm(); }
  /// Shows the dialog, answers it, and says whether the form was disabled meanwhile.
  bool Execute(TCommonDialog& dialog, int button) {
    const HWND form = Form.Handle();
    bool disabled = false;
    TBoxAnswer answer(button, 1, [&] { return disabled = !::IsWindowEnabled(form); });
    const bool agreed = dialog.Execute();
    EXPECT_TRUE(answer.Wait());
    EXPECT_TRUE(disabled);
    EXPECT_TRUE(::IsWindowEnabled(form));
    EXPECT_EQ(::GetActiveWindow(), form);
    Caption = answer.Caption();
    return agreed;
  }
  std::string Caption;
};

TEST_F(Dialogs, FilesAreChosenWithFolderExtensionAndFilter) {
  wchar_t buffer[MAX_PATH];
  ::GetTempPathW(MAX_PATH, buffer);
  const std::filesystem::path folder = std::filesystem::path(buffer) / L"Wähl";
  std::filesystem::create_directories(folder);
  std::ofstream(folder / L"Größe.txt") << "x";
  TOpenDialog open(nullptr);
  TSaveDialog save(nullptr);
  for (TOpenDialog* dialog : {&open, static_cast<TOpenDialog*>(&save)}) {
    const TOpenOptions options = dialog->Options() + TOpenOptions{ofNoChangeDir};
    dialog->SetOptions(options);
    for (const bool multi : {false, true}) {
      dialog->SetOptions(multi ? options + TOpenOptions{ofAllowMultiSelect} : options);
      dialog->SetInitialDir(ToUtf8(folder.native()));
      dialog->SetFileName("Größe");
      dialog->SetDefaultExt(".txt");
      dialog->SetFilter("Notes|*.note|Text|*.txt;*.text");
      dialog->SetFilterIndex(2);
      dialog->SetTitle("Wähle");
      ASSERT_TRUE(Execute(*dialog, IDOK));
      EXPECT_EQ(Caption, "Wähle");
      EXPECT_EQ(dialog->FileName(), ToUtf8((folder / L"Größe.txt").native()));
      EXPECT_EQ(dialog->Files()->CommaText(), dialog->FileName());
      EXPECT_EQ(dialog->FilterIndex(), 2);
    }
    dialog->SetFileName("kept");
    EXPECT_FALSE(Execute(*dialog, IDCANCEL));
    EXPECT_EQ(dialog->FileName(), "kept");
    dialog->SetFileName("no*such|name?");
    EXPECT_FALSE(Execute(*dialog, IDCANCEL));
  }
  std::filesystem::remove_all(folder);
}

TEST_F(Dialogs, EventsMayRefuseRaiseAndFree) {
  auto* dialog = new TSaveDialog(nullptr);
  std::string events;
  dialog->OnShow = [&](TObject*) {
    EXPECT_TRUE(dialog->Handle());
    events += "show ";
    EXPECT_THROW(dialog->Execute(), EInvalidOperation);
    throw Exception("raised inside");
  };
  dialog->OnClose = [&](TObject*) { events += "close "; };
  dialog->OnCanClose = [&](TObject*, bool& canClose) {
    events += "ask ";
    canClose = false;
    ::PostMessageW(::GetParent(dialog->Handle()), WM_COMMAND, IDCANCEL, 0);
  };
  dialog->SetFileName("any");
  EXPECT_FALSE(Execute(*dialog, IDOK));
  EXPECT_EQ(events, "show ask close ");
  EXPECT_EQ(std::exchange(Errors, {}), "raised inside");
  dialog->OnShow = [&](TObject*) { delete dialog; };
  EXPECT_FALSE(dialog->Execute());
}

TEST_F(Dialogs, ColoursAndFontsComeBackAsChosen) {
  TColorDialog color(nullptr);
  color.SetColor(static_cast<TColor>(0x123456));
  color.CustomColors()->SetCommaText("ColorB=00FF80,ColorC=nonsense");
  color.OnShow = [&](TObject*) { EXPECT_TRUE(color.Handle()); };
  ASSERT_TRUE(Execute(color, IDOK));
  EXPECT_EQ(color.Color(), static_cast<TColor>(0x123456));
  EXPECT_EQ(color.CustomColors()->Values("ColorB"), "00FF80");
  EXPECT_EQ(color.CustomColors()->Values("ColorC"), "FFFFFF");

  TFontDialog font(nullptr);
  ASSERT_TRUE(Execute(font, IDOK)) << "whatever fonts there are, the first one is";
  const std::string name = font.Font()->Name();
  font.Font()->SetSize(14);
  font.Font()->SetStyle({fsItalic});
  ASSERT_TRUE(Execute(font, IDOK));
  EXPECT_EQ(font.Font()->Name(), name);
  EXPECT_EQ(font.Font()->Size(), 14);
  EXPECT_EQ(font.Font()->Style(), TFontStyles{fsItalic});
  EXPECT_EQ(font.Font()->Color(), clWindowText);
  EXPECT_FALSE(Execute(font, IDCANCEL));
}

/// Whether a form with the caption is in front.
std::function<bool()> InFront(const wchar_t* caption) {
  return [caption] {
    const HWND form = ::FindWindowW(nullptr, caption);
    return form && form == ::GetForegroundWindow();
  };
}

TEST_F(Dialogs, MessagesAndQuestionsAreAnsweredByKeys) {
  const std::tuple<TMsgDlgType, TMsgDlgButtons, const wchar_t*, WORD, TModalResult> cases[] = {
      {mtWarning, {mbYes, mbNo, mbCancel}, L"Warning", VK_RETURN, mrYes},
      {mtConfirmation, {mbYes, mbNo, mbCancel}, L"Confirm", 'N', mrNo},
      {mtConfirmation, {mbYes, mbNo}, L"Confirm", VK_ESCAPE, mrNo},
      {mtError, {mbAbort, mbRetry, mbIgnore}, L"Error", 'I', mrIgnore},
      {mtInformation, {}, L"Information", VK_ESCAPE, mrOk},
  };
  std::string text(3000, 'w');
  text += " & ü";
  for (const auto& [type, buttons, caption, key, result] : cases) {
    const testinput::TKeysWhen keys(InFront(caption), {key});
    EXPECT_EQ(MessageDlg(text, type, buttons), result);
  }
  for (const WORD key : {WORD{VK_RETURN}, WORD{VK_ESCAPE}}) {
    const testinput::TKeysWhen keys(InFront(L"Warning"), {key});
    EXPECT_EQ(MessageDlg("Replace it?", mtWarning, {mbYes, mbNo, mbCancel}, mbNo),
              key == VK_RETURN ? mrNo : mrCancel);
  }
  EXPECT_THROW(MessageDlg("Really?", mtWarning, {mbYes, mbNo}, mbCancel),
               EArgumentOutOfRangeException);
  std::string value = "former";
  for (const bool agreed : {true, false}) {
    const WORD last = agreed ? VK_RETURN : VK_ESCAPE;
    const testinput::TKeysWhen keys(InFront(L"Frage"), {'A', 'B', last});
    EXPECT_EQ(InputQuery("Frage", "Was?", value), agreed);
    EXPECT_EQ(value, "ab");
    const testinput::TKeysWhen again(InFront(L"Frage"), {'C', last});
    EXPECT_EQ(InputBox("Frage", "Was?", "offered"), agreed ? "c" : "offered");
  }
}

TEST_F(Dialogs, AStatusBarShowsItsPanelsOrOneText) {
  RegisterStandardClasses();
  auto* bar = Make<TStatusBar>(0, 0);
  const auto shown = [bar](int part) {
    wchar_t text[64] = L"";
    ::SendMessageW(bar->Handle(), SB_GETTEXTW, static_cast<WPARAM>(part),
                   reinterpret_cast<LPARAM>(text));
    return ToUtf8(text);
  };
  for (const char* text : {"Zeile", "Spä"}) bar->Panels()->Add()->SetText(text);
  bar->Panels()->Items(0)->SetWidth(80);
  bar->Panels()->Items(1)->SetAlignment(taCenter);
  EXPECT_EQ(shown(0), "Zeile");
  EXPECT_EQ(shown(1), "\tSpä");
  EXPECT_EQ(bar->Top() + bar->Height(), Form.ClientHeight());
  RECT part;
  ::SendMessageW(bar->Handle(), SB_GETRECT, 1, reinterpret_cast<LPARAM>(&part));
  EXPECT_EQ(part.left, 80 + 2);
  bar->SetSimpleText("Alles gut: ä");
  bar->SetSimplePanel(true);
  EXPECT_EQ(shown(0), "Alles gut: ä") << "its only part now";
  bar->RecreateWnd();
  EXPECT_EQ(::SendMessageW(bar->Handle(), SB_ISSIMPLE, 0, 0), TRUE);
  bar->SetSimplePanel(false);
  EXPECT_EQ(shown(1), "\tSpä");
  bar->Panels()->Clear();
  EXPECT_EQ(shown(0), "");
}

TEST_F(Dialogs, AnImageIsPlacedStretchedAndKept) {
  auto* image = Make<TImage>(10, 10);
  image->SetBounds(10, 10, 40, 40);
  TBitmap* bitmap = image->Picture()->Bitmap();
  bitmap->SetSize(20, 10);
  bitmap->Canvas()->Brush()->SetColor(clRed);
  bitmap->Canvas()->FillRect({0, 0, 20, 10});
  testinput::Pump();
  EXPECT_EQ(Find(clRed), Bounds(10, 10, 20, 10));
  image->SetCenter(true);
  EXPECT_EQ(Find(clRed), Bounds(20, 25, 20, 10));
  image->SetStretch(true);
  EXPECT_EQ(Find(clRed), Bounds(10, 10, 40, 40));
  image->SetAutoSize(true);
  EXPECT_EQ(image->Width(), 20);
  image->SetTransparent(true);
  EXPECT_EQ(Find(clRed), TRect()) << "red is the transparent colour";

  TImage copy(nullptr);
  ReadForm(FormText(image), &copy);
  EXPECT_EQ(copy.Picture()->Width(), 20);
  EXPECT_EQ(copy.Picture()->Bitmap()->Canvas()->Pixels(3, 3), clRed);
  copy.Picture()->Icon();
  EXPECT_EQ(copy.Picture()->Width(), 0);
  EXPECT_THROW(copy.Picture()->LoadFromFile("C:\\a.bmp\\picture"), EInvalidGraphic);
}

}  // namespace
}  // namespace vcl
