// Printers, their dialogs, the preview, and the dialogs for finding.
#include <algorithm>
#include <functional>

#include "tests/vcl/standardform.h"
#include "vcl/printing/private/printersystem.h"
#include "vcl/rtl/win32.h"
// It needs what stands above.
#include <winspool.h>

#include "vcl/rtl/systemmacros.h"

namespace vcl {
namespace {

using namespace testinput;

/// What a call raises; empty for nothing.
template <class E, class Call>
std::string Raised(Call call) {
  try {
    call();
  } catch (const E& error) {
    return error.what();
  }
  return {};
}

/// Two printers of 600 dots per inch that draw on memory and keep a log.
class TTwoPrinters : public TPrinterSystem {
 public:
  explicit TTwoPrinters(std::vector<std::string>& log) : FLog(log) {}
  std::vector<std::string> Printers() const override { return {"Laser", "Draft"}; }
  std::string DefaultPrinter() const override { return "Draft"; }
  std::string Settings(const std::string&) const override {
    DEVMODEW mode{};
    mode.dmSize = sizeof mode;
    return {reinterpret_cast<const char*>(&mode), sizeof mode};
  }
  int Capability(const std::string& printer, unsigned short which,
                 const std::string&) const override {
    return which == DC_COPIES ? 99 : which == DC_COLORDEVICE && printer == "Laser" ? 1 : -1;
  }
  HDC Open(const std::string& printer, const std::string& settings, bool onlyToAsk) const override {
    DEVMODEW mode{};
    std::copy_n(settings.data(), sizeof mode, reinterpret_cast<char*>(&mode));
    FAcross = mode.dmOrientation == DMORIENT_LANDSCAPE;
    if (!onlyToAsk) FLog.push_back("open " + printer + " copies " + std::to_string(mode.dmCopies));
    return ::CreateCompatibleDC(nullptr);
  }
  TPageMetrics Metrics(HDC) const override {
    return StandardPage(FAcross ? poLandscape : poPortrait);
  }
  bool StartDocument(HDC, const std::string& title, const std::string& file) const override {
    FLog.push_back("start " + title + " > " + file);
    return FailsAt != "start";
  }
  bool StartPage(HDC) const override { return Step("page"); }
  bool EndPage(HDC) const override { return Step("end page"); }
  bool EndDocument(HDC) const override { return Step("end"); }
  void Abort(HDC) const override { Step("abort"); }

  std::string FailsAt;

 private:
  bool Step(const std::string& what) const {
    FLog.push_back(what);
    return what != FailsAt;
  }
  std::vector<std::string>& FLog;
  mutable bool FAcross = false;
};

class TNoPrinter : public TPrinterSystem {
 public:
  std::vector<std::string> Printers() const override { return {}; }
};

class Printing : public TStandardForm {
 protected:
  Printing() : System(new TTwoPrinters(Log)), Paper(std::unique_ptr<TPrinterSystem>(System)) {}
  std::vector<std::string> Log;
  TTwoPrinters* System;
  TPrinter Paper;
};

TEST_F(Printing, PagesFollowEachOtherInADocument) {
  EXPECT_EQ(Raised<EPrinter>([&] { Paper.Canvas(); }).substr(0, 29),
            "No document is being printed:");
  EXPECT_THROW(Paper.NewPage(), EPrinter);
  EXPECT_THROW(Paper.EndDoc(), EPrinter);
  EXPECT_THROW(Paper.Abort(), EPrinter);
  Paper.SetTitle("Report");
  Paper.SetOutputFile("C:\\out.prn");
  Paper.BeginDoc();
  EXPECT_EQ(Paper.PageNumber(), 1);
  EXPECT_EQ(Raised<EPrinter>([&] { Paper.BeginDoc(); }),
            "Printing is under way: page 1 of \"Report\" is being drawn");
  EXPECT_THROW(Paper.SetCopies(2), EPrinter);
  EXPECT_THROW(Paper.SetPrinterIndex(0), EPrinter);
  Paper.NewPage();
  EXPECT_EQ(Paper.PageNumber(), 2);
  Paper.EndDoc();
  EXPECT_FALSE(Paper.Printing());
  EXPECT_EQ(Log, (std::vector<std::string>{"open Draft copies 0", "start Report > C:\\out.prn",
                                           "page", "end page", "page", "end page", "end"}));
  Log.clear();
  Paper.BeginDoc();
  Paper.Abort();
  EXPECT_TRUE(Paper.Aborted());
  EXPECT_EQ(Log.back(), "abort");
}

TEST_F(Printing, WhatTheSystemRefusesGivesTheDocumentUp) {
  for (const char* step : {"start", "page", "end page", "end"}) {
    System->FailsAt = step;
    const std::string text = Raised<EPrinter>([&] {
      Paper.BeginDoc();
      Paper.EndDoc();
    });
    EXPECT_EQ(text.substr(0, 19), "The printer \"Draft\"") << step;
    EXPECT_FALSE(Paper.Printing()) << step;
  }
  System->FailsAt.clear();
  Paper.BeginDoc();
  Paper.EndDoc();
  EXPECT_FALSE(Paper.Aborted());
}

TEST_F(Printing, PrintersAndTheirSettingsAreChosen) {
  EXPECT_EQ(Paper.Printers(), (std::vector<std::string>{"Laser", "Draft"}));
  EXPECT_EQ(Paper.PrinterIndex(), 1) << "the default";
  EXPECT_EQ(Paper.Capabilities(), TPrinterCapabilities{pcCopies});
  Paper.SetPrinterIndex(0);
  EXPECT_EQ(Paper.PrinterName(), "Laser");
  EXPECT_EQ(Paper.Capabilities(), (TPrinterCapabilities{pcCopies, pcColor}));
  EXPECT_EQ(Paper.Orientation(), poPortrait);
  const int width = Paper.PageWidth();
  Paper.SetOrientation(poLandscape);
  EXPECT_EQ(Paper.Orientation(), poLandscape);
  EXPECT_EQ(Paper.PageHeight(), width);
  Paper.SetCopies(3);
  EXPECT_EQ(Paper.Copies(), 3);
  Paper.BeginDoc();
  Paper.EndDoc();
  EXPECT_EQ(Log.front(), "open Laser copies 3");
  EXPECT_THROW(Paper.SetCopies(0), EArgumentOutOfRangeException);
  EXPECT_THROW(Paper.SetPrinterIndex(2), EListError);
  EXPECT_EQ(Raised<EPrinter>([&] { Paper.SetSettings("None", ""); }),
            "No printer has the name \"None\"");
  EXPECT_EQ(Paper.PrinterIndex(), 0) << "what was chosen stays";
  Paper.SetPrinterIndex(-1);
  EXPECT_EQ(Paper.PrinterIndex(), 1);
  TPrinter none(std::make_unique<TNoPrinter>());
  EXPECT_EQ(none.PrinterIndex(), -1);
  for (const auto& call : std::initializer_list<std::function<void()>>{
           [&] { none.BeginDoc(); }, [&] { none.PageWidth(); }, [&] { none.Orientation(); },
           [&] { none.SetCopies(2); }, [&] { none.Fonts(); }}) {
    EXPECT_EQ(Raised<EPrinter>(call), "No printer is installed");
  }
}

TEST_F(Printing, FontsAreInPointsOfTheDevice) {
  TFont screen;
  screen.SetName("Tahoma");
  screen.SetSize(12);
  Paper.BeginDoc();
  EXPECT_EQ(Paper.Canvas()->Font()->PixelsPerInch(), 600);
  Paper.Canvas()->Font()->Assign(&screen);
  EXPECT_EQ(Paper.Canvas()->Font()->Size(), 12);
  EXPECT_EQ(Paper.Canvas()->Font()->Height(), -100) << "a sixth of an inch";
  EXPECT_EQ(Paper.MillimetresX(254), 600);
  Paper.EndDoc();
}

TEST_F(Printing, FontsOfTheDeviceAreListedInOrder) {
  const std::vector<std::string> fonts = Paper.Fonts();
  EXPECT_FALSE(fonts.empty());
  EXPECT_TRUE(std::ranges::is_sorted(fonts));
}

/// Draws a black square of an inch, two inches from the left and one from the top, and a text; as
/// many pages as it is told.
void DrawSquares(TPrintDocument& document, int pages) {
  for (int page = 0; page < pages; ++page) {
    if (page > 0) document.NewPage();
    const int inchX = document.MillimetresX(254);
    const int inchY = document.MillimetresY(254);
    document.Canvas()->Brush()->SetColor(clBlack);
    document.Canvas()->FillRect({2 * inchX, inchY, 3 * inchX, 2 * inchY});
    document.Canvas()->Brush()->SetStyle(bsClear);
    document.Canvas()->Font()->SetSize(24);
    document.Canvas()->TextOut(inchX, 3 * inchY, "Page " + std::to_string(page + 1));
  }
}

TEST_F(Printing, RecordedPagesShowWhatWasDrawnInItsPlace) {
  const TPageMetrics metrics = StandardPage(poPortrait);
  TPageRecorder recorder(metrics);
  recorder.BeginDoc();
  const int width = recorder.Canvas()->TextWidth("wide");
  recorder.Canvas()->Font()->SetSize(16);
  EXPECT_NEAR(recorder.Canvas()->TextWidth("wide"), 2 * width, width / 5) << "8 points at first";
  DrawSquares(recorder, 2);
  EXPECT_EQ(recorder.PageCount(), 1) << "the second is not finished";
  recorder.EndDoc();
  ASSERT_EQ(recorder.PageCount(), 2);
  TBitmap bitmap(metrics.Page.cx / 10, metrics.Page.cy / 10);
  recorder.Draw(1, bitmap.Canvas(), {0, 0, bitmap.Width(), bitmap.Height()});
  // 60 pixels an inch are left.
  EXPECT_EQ(bitmap.Canvas()->Pixels(150, 90), clBlack);
  EXPECT_EQ(bitmap.Canvas()->Pixels(124, 64), clBlack);
  EXPECT_EQ(bitmap.Canvas()->Pixels(175, 115), clBlack);
  EXPECT_EQ(bitmap.Canvas()->Pixels(115, 90), clWhite);
  EXPECT_EQ(bitmap.Canvas()->Pixels(185, 90), clWhite);
  EXPECT_EQ(bitmap.Canvas()->Pixels(150, 125), clWhite);
  EXPECT_THROW(recorder.Page(2), EListError);
  recorder.BeginDoc();
  recorder.Abort();
  EXPECT_EQ(recorder.PageCount(), 0);
  EXPECT_THROW(TPageRecorder(TPageMetrics{}), EArgumentOutOfRangeException);
}

class Preview : public Printing {
 protected:
  Preview() : View(new TPrintPreview(&Form)) {
    Form.SetBounds(20, 20, 700, 600);
    View->SetParent(&Form);
    View->SetAlign(alClient);
    View->SetPageMetrics(StandardPage(poPortrait));
    View->OnPrint = [this](TObject*, TPrintDocument& document) { DrawSquares(document, 5); };
    ShowForm();
  }
  TPrintPreview* View;
};

TEST_F(Preview, ShowsPagesSideBySideAndGoesFromPageToPage) {
  EXPECT_EQ(View->PageIndex(), -1);
  int changes = 0;
  View->OnChange = [&](TObject*) { ++changes; };
  View->UpdatePages();
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(View->PageCount(), 5);
  EXPECT_EQ(View->PageIndex(), 0);
  const TRect whole = View->PageRect(0);
  EXPECT_GE(whole.Top, 0);
  EXPECT_LE(whole.Bottom, View->ClientHeight()) << "the whole page is inside";
  EXPECT_NEAR(whole.Width() * 297, whole.Height() * 210, 600);
  View->SetPagesAcross(3);
  EXPECT_EQ(View->PageRect(2).Top, View->PageRect(0).Top);
  EXPECT_GT(View->PageRect(3).Top, View->PageRect(0).Bottom);
  EXPECT_GT(View->PageRect(1).Left, View->PageRect(0).Right);
  View->SetPagesAcross(1);
  View->SetFocus();
  TypeKey(VK_NEXT, {VK_CONTROL});
  EXPECT_EQ(View->PageIndex(), 1);
  EXPECT_LT(View->PageRect(0).Top, 0);
  EXPECT_GE(View->PageRect(1).Top, 0);
  TypeKey(VK_PRIOR, {VK_CONTROL});
  EXPECT_EQ(View->PageIndex(), 0);
  View->SetPageIndex(4);
  View->NextPage();
  EXPECT_EQ(View->PageIndex(), 4);
  View->VertScrollBar()->SetPosition(0);
  EXPECT_EQ(View->PageIndex(), 0) << "the page that was gone to is out of sight";
  EXPECT_THROW(View->SetPageIndex(5), EListError);
  EXPECT_THROW(View->SetPagesAcross(0), EArgumentOutOfRangeException);
}

TEST_F(Preview, ZoomsByPropertyKeysAndWidth) {
  View->UpdatePages();
  View->SetZoom(50);
  EXPECT_EQ(View->Size(), psZoom);
  EXPECT_NEAR(View->PageRect(0).Width(), View->CurrentPPI() * 2100 / 254 / 2, 2);
  View->SetFocus();
  TypeKey(VK_ADD, {VK_CONTROL});
  EXPECT_NEAR(View->Zoom(), 60, 1);
  TypeKey(VK_SUBTRACT, {VK_CONTROL});
  EXPECT_NEAR(View->Zoom(), 50, 1);
  View->SetSize(psPageWidth);
  EXPECT_GT(View->PageRect(0).Width(), View->ClientWidth() * 9 / 10);
  const int wide = View->PageRect(0).Width();
  Form.SetWidth(Form.Width() - 200);
  EXPECT_EQ(View->PageRect(0).Width(), wide - 200) << "it follows the control's width";
  EXPECT_THROW(View->SetZoom(5), EArgumentOutOfRangeException);
}

TEST_F(Preview, PaintsWhatIsPrinted) {
  View->UpdatePages();
  View->SetPagesAcross(2);
  Form.Update();
  const TRect page = View->PageRect(1);
  const auto image = Form.GetFormImage();
  const auto at = [&](int tenthsX, int tenthsY) {
    const TPoint place = Form.ScreenToClient(
        View->ClientToScreen({page.Left + page.Width() * (50 + tenthsX) / 2100,
                              page.Top + page.Height() * (50 + tenthsY) / 2970}));
    return image->Canvas()->Pixels(place.X, place.Y);
  };
  EXPECT_EQ(at(635, 381), clBlack) << "the middle of the square";
  EXPECT_EQ(at(400, 381), clWhite);
  EXPECT_EQ(at(900, 381), clWhite);
  EXPECT_EQ(image->Canvas()->Pixels(6, Form.ClientHeight() / 2),
            static_cast<TColor>(ColorToRGB(clAppWorkSpace)));
}

TEST_F(Preview, WhatAHandlerRaisesLeavesThePagesAndItMayFree) {
  View->UpdatePages();
  View->OnPrint = [](TObject*, TPrintDocument&) { throw EConvertError("no data"); };
  EXPECT_THROW(View->UpdatePages(), EConvertError);
  EXPECT_EQ(View->PageCount(), 5);
  View->OnPrint = [&](TObject*, TPrintDocument&) { delete View; };
  View->UpdatePages();
  EXPECT_EQ(Form.ControlCount(), 0);
}

// Dialogs.

TEST_F(Printing, DialogsSayThatNoPrinterIsThere) {
  if (!Printer()->Printers().empty()) GTEST_SKIP() << "printers are installed";
  TPrintDialog print(nullptr);
  TPrinterSetupDialog setup(nullptr);
  TPageSetupDialog page(nullptr);
  for (TCommonDialog* dialog : std::initializer_list<TCommonDialog*>{&print, &setup, &page}) {
    EXPECT_EQ(Raised<EPrinter>([&] { dialog->Execute(); }), "No printer is installed");
  }
  EXPECT_THROW(print.SetCopies(0), EArgumentOutOfRangeException);
  EXPECT_THROW(print.SetToPage(-1), EArgumentOutOfRangeException);
  EXPECT_THROW(page.SetMarginTop(-1), EArgumentOutOfRangeException);
}

TEST_F(Printing, MarginsBecomePixelsInsideThePage) {
  TPageSetupDialog page(nullptr);
  page.SetMarginLeft(2540);
  page.SetMarginTop(0);
  TPageRecorder recorder(StandardPage(poPortrait));
  const TRect area = page.TextArea(recorder);
  const int edge = StandardPage(poPortrait).Edge.X;
  EXPECT_EQ(area.Left, 600 - edge);
  EXPECT_EQ(area.Top, 0) << "no printer reaches the edge";
  EXPECT_NEAR(area.Right, recorder.PageWidth() - (472 - edge), 2);
}

// The dialogs for finding, which are not modal.

class Finding : public TStandardForm {
 protected:
  Finding() { ShowForm(); }
  static void SetField(HWND dialog, int field, const wchar_t* text) {
    ::SetDlgItemTextW(dialog, field, text);
  }
};

constexpr int FindField = 0x480;         // edt1 of the system's dialog.
constexpr int ReplaceField = 0x481;      // edt2.
constexpr int MatchCaseBox = 0x411;      // chx2.
constexpr int ReplaceAllButton = 0x401;  // psh2.

TEST_F(Finding, FindStaysAndTellsOfEachPress) {
  TFindDialog find(nullptr);
  std::string log;
  find.OnShow = [&](TObject*) { log += "show "; };
  find.OnClose = [&](TObject*) { log += "close "; };
  find.OnFind = [&](TObject*) {
    log += find.FindText() + (find.Options().Has(frMatchCase) ? "/case " : " ");
    EXPECT_TRUE(find.Options().Has(frFindNext));
  };
  find.SetFindText("gr\xC3\xBC\xC3\x9F");
  ASSERT_TRUE(find.Execute());
  ASSERT_TRUE(find.Handle());
  EXPECT_TRUE(::IsWindowEnabled(Form.Handle())) << "it is not modal";
  EXPECT_EQ(::GetWindow(find.Handle(), GW_OWNER), Form.Handle());
  EXPECT_TRUE(find.Execute()) << "it is up already";
  // The keys go by the application's message loop: Enter presses the button.
  ASSERT_TRUE(PumpUntil([&] { return ::GetForegroundWindow() == find.Handle(); }));
  ::SetFocus(::GetDlgItem(find.Handle(), FindField));
  TypeKey(VK_RETURN);
  EXPECT_TRUE(PumpUntil([&] { return log != "show "; }));
  EXPECT_EQ(log, "show gr\xC3\xBC\xC3\x9F ");
  ::CheckDlgButton(find.Handle(), MatchCaseBox, BST_CHECKED);
  SetField(find.Handle(), FindField, L"other");
  ::SendMessageW(find.Handle(), WM_COMMAND, IDOK, 0);
  EXPECT_EQ(log, "show gr\xC3\xBC\xC3\x9F other/case ");
  TypeKey(VK_ESCAPE);
  EXPECT_TRUE(PumpUntil([&] { return !find.Handle(); }));
  EXPECT_EQ(log, "show gr\xC3\xBC\xC3\x9F other/case close ");
  ASSERT_TRUE(find.Execute()) << "it can be shown again";
  find.CloseDialog();
  EXPECT_TRUE(PumpUntil([&] { return !find.Handle(); }));
  EXPECT_THROW(find.SetFindText(std::string(1024, 'x')), EArgumentOutOfRangeException);
}

TEST_F(Finding, ReplaceSaysWhatToPutInPlace) {
  TReplaceDialog replace(nullptr);
  std::string log;
  replace.OnFind = [&](TObject*) { log += "find "; };
  replace.OnReplace = [&](TObject*) {
    log += replace.FindText() + ">" + replace.ReplaceText();
    log += replace.Options().Has(frReplaceAll) ? "/all " : " ";
  };
  replace.SetFindText("a");
  replace.SetReplaceText("b");
  ASSERT_TRUE(replace.Execute());
  SetField(replace.Handle(), ReplaceField, L"c");
  ::SendMessageW(replace.Handle(), WM_COMMAND, ReplaceAllButton, 0);
  ::SendMessageW(replace.Handle(), WM_COMMAND, IDOK, 0);
  EXPECT_EQ(log, "a>c/all find ");
}

TEST_F(Finding, HandlersMayFreeTheDialogOrItsForm) {
  auto* find = new TFindDialog(nullptr);
  find->SetFindText("x");
  find->OnFind = [&](TObject*) { delete std::exchange(find, nullptr); };
  ASSERT_TRUE(find->Execute());
  const HWND window = find->Handle();
  ::SendMessageW(window, WM_COMMAND, IDOK, 0);
  EXPECT_EQ(find, nullptr);
  EXPECT_TRUE(PumpUntil([&] { return !::IsWindow(window); }));
  auto* other = new TForm(nullptr);
  other->Show();
  ::SetActiveWindow(other->Handle());
  TFindDialog stays(nullptr);
  ASSERT_TRUE(stays.Execute());
  delete other;
  EXPECT_FALSE(stays.Handle()) << "it goes with the form that it stands in front of";
  ASSERT_TRUE(stays.Execute());
}

}  // namespace
}  // namespace vcl
