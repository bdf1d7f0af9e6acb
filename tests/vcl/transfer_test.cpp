// The clipboard, dragging between programs, and files that are dropped on forms.
#include <atomic>
#include <thread>

#include "tests/vcl/dropfiles.h"
#include "tests/vcl/standardform.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/graphics/codedimage.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
// They need what stands above.
#include <ole2.h>
#include <shellapi.h>
#include <shlobj.h>

#include "vcl/rtl/systemmacros.h"

namespace vcl {
namespace {

using namespace testinput;

/// What is on the clipboard as another program reads it.
std::string RawBytes(UINT format) {
  EXPECT_TRUE(::OpenClipboard(nullptr));
  const HANDLE block = ::GetClipboardData(format);
  std::string bytes;
  if (const void* data = block ? ::GlobalLock(block) : nullptr) {
    bytes.assign(static_cast<const char*>(data), ::GlobalSize(block));
    ::GlobalUnlock(block);
  }
  ::CloseClipboard();
  return bytes;
}

/// Puts bytes on the clipboard as another program does.
void PutRaw(UINT format, const std::string& bytes) {
  ASSERT_TRUE(::OpenClipboard(Application()->Handle()));
  ::EmptyClipboard();
  const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, bytes.size());
  std::copy(bytes.begin(), bytes.end(), static_cast<char*>(::GlobalLock(block)));
  ::GlobalUnlock(block);
  EXPECT_TRUE(::SetClipboardData(format, block));
  ::CloseClipboard();
}

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

class Transfer : public TStandardForm {};

TEST_F(Transfer, TextGoesBothWaysWithTheSystemsLineEnds) {
  Clipboard()->SetAsText("gr\xC3\xBC\xC3\x9F\n\xF0\x9F\x98\x80\r\nend");
  EXPECT_EQ(Clipboard()->AsText(), "gr\xC3\xBC\xC3\x9F\n\xF0\x9F\x98\x80\nend");
  const std::wstring wide = L"gr\u00FC\u00DF\r\n\xD83D\xDE00\r\nend";
  EXPECT_EQ(RawBytes(CF_UNICODETEXT).substr(0, (wide.size() + 1) * 2),
            std::string(reinterpret_cast<const char*>(wide.c_str()), (wide.size() + 1) * 2));
  TDataObject bare;
  bare.SetBytes(tfText, std::string("a\0b\0", 4));
  EXPECT_EQ(bare.AsText(), "ab") << "a text without a zero behind it";
  PutRaw(CF_TEXT, std::string("plain\0rest", 10));
  EXPECT_EQ(Clipboard()->AsText(), "plain");
  Clipboard()->Clear();
  EXPECT_EQ(Clipboard()->AsText(), "");
  EXPECT_FALSE(Clipboard()->Has(dkText));
  EXPECT_TRUE(Clipboard()->Formats().empty());
}

TEST_F(Transfer, HtmlHasItsOffsetsInBytes) {
  const THtmlPiece piece{"<b>gr\xC3\xBC\xC3\x9F</b>\n<i>x</i>", "http://localhost/p\xC3\xA4ge"};
  Clipboard()->SetHtml(piece);
  const std::string raw = RawBytes(HtmlTransferFormat());
  const auto at = [&raw](const std::string& key) {
    return std::stoul(raw.substr(raw.find(key) + key.size(), 10));
  };
  EXPECT_EQ(raw.substr(0, 13), "Version:0.9\r\n");
  EXPECT_EQ(raw.substr(at("StartFragment:"), at("EndFragment:") - at("StartFragment:")),
            piece.Html);
  EXPECT_EQ(raw.substr(at("StartHTML:"), 6), "<html>");
  EXPECT_EQ(raw.substr(at("EndHTML:") - 7, 7), "</html>");
  ASSERT_TRUE(Clipboard()->AsHtml());
  EXPECT_EQ(Clipboard()->AsHtml()->Html, piece.Html);
  EXPECT_EQ(Clipboard()->AsHtml()->SourceUrl, piece.SourceUrl);
  // As another program may write it: short numbers, no place of the page, bytes behind a zero.
  PutRaw(HtmlTransferFormat(),
         std::string("EndFragment:70\nStartHTML:-1\nEndHTML:-1\nStartFragment:62\n<html><p>t</p>"
                     "</html>\0rest",
                     82));
  EXPECT_EQ(Clipboard()->AsHtml()->Html, "<p>t</p>");
  const std::pair<const char*, const char*> damaged[] = {
      {"StartFragment:9999\r\nEndFragment:99999\r\n<p>", "StartFragment:9999"},
      {"StartFragment:1x\r\nEndFragment:2\r\n<p>", "StartFragment:1x"},
      {"StartFragment:9\r\nEndFragment:2\r\n<p>", "begins and ends"},
      {"<p>no head</p>", "begins and ends"},
  };
  for (const auto& [bytes, text] : damaged) {
    PutRaw(HtmlTransferFormat(), bytes);
    EXPECT_NE(Raised<EConvertError>([] { Clipboard()->AsHtml(); }).find(text), std::string::npos)
        << bytes;
  }
  TDataObject data;
  EXPECT_THROW(data.SetHtml({"x", "a\r\nStartHTML:1"}), EConvertError);
  EXPECT_TRUE(data.Formats().empty());
}

TEST_F(Transfer, FilesGoBothWays) {
  const std::vector<std::string> names = {"C:\\gr\xC3\xBC\xC3\x9F.txt",
                                          "C:\\" + std::string(400, 'x') + "\\y.txt"};
  Clipboard()->SetFiles(names);
  ASSERT_TRUE(::OpenClipboard(nullptr));
  const auto drop = static_cast<HDROP>(::GetClipboardData(CF_HDROP));
  EXPECT_EQ(::DragQueryFileW(drop, ~0U, nullptr, 0), 2u);
  std::wstring second(::DragQueryFileW(drop, 1, nullptr, 0), L'\0');
  ::DragQueryFileW(drop, 1, second.data(), static_cast<UINT>(second.size()) + 1);
  ::CloseClipboard();
  EXPECT_EQ(ToUtf8(second), names[1]);
  EXPECT_EQ(Clipboard()->Files(), names);
  DROPFILES head{};
  head.pFiles = sizeof head;
  std::string narrow(reinterpret_cast<const char*>(&head), sizeof head);
  PutRaw(CF_HDROP, narrow + std::string("C:\\a\0C:\\b c\0\0", 13));
  EXPECT_EQ(Clipboard()->Files(), (std::vector<std::string>{"C:\\a", "C:\\b c"}));
  for (const std::string& damaged : {std::string("short"), narrow + "no end"}) {
    TDataObject data;
    data.SetBytes(tfFiles, damaged);
    EXPECT_THROW(data.Files(), EConvertError);
  }
  EXPECT_THROW(Clipboard()->SetFiles({"ok", ""}), EArgumentOutOfRangeException);
}

/// A picture that covers nothing but its left column, which is half red.
void MakeHalfRed(TPngImage& png) {
  static constexpr unsigned char file[] = {
      0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48, 0x44,
      0x52, 0x00, 0x00, 0x00, 0x02, 0x00, 0x00, 0x00, 0x01, 0x08, 0x06, 0x00, 0x00, 0x00, 0xF4,
      0x22, 0x7F, 0x8A, 0x00, 0x00, 0x00, 0x0F, 0x49, 0x44, 0x41, 0x54, 0x78, 0x9C, 0x63, 0xF8,
      0xCF, 0xC0, 0xD0, 0xC0, 0x00, 0x04, 0x00, 0x0A, 0x81, 0x01, 0x80, 0x0D, 0x80, 0xFE, 0xE7,
      0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4E, 0x44, 0xAE, 0x42, 0x60, 0x82};
  TStringStream stream(std::string(reinterpret_cast<const char*>(file), sizeof file));
  png.LoadFromStream(stream);
}

TEST_F(Transfer, PicturesGoBothWaysAsBitmapAndAsPng) {
  TBitmap bitmap(3, 2);
  bitmap.SetPixelFormat(pf24bit);
  bitmap.Canvas()->SetPixel(0, 0, static_cast<TColor>(0x0000FF));
  bitmap.Canvas()->SetPixel(2, 1, static_cast<TColor>(0x00FF00));
  Clipboard()->SetPicture(bitmap);
  EXPECT_TRUE(Clipboard()->Has(dkPicture));
  BITMAPINFOHEADER head{};
  const std::string dib = RawBytes(CF_DIB);
  ASSERT_GE(dib.size(), sizeof head);
  std::copy_n(dib.data(), sizeof head, reinterpret_cast<char*>(&head));
  EXPECT_EQ(head.biWidth, 3);
  EXPECT_EQ(head.biHeight, 2);
  for (const bool png : {true, false}) {
    if (!png) PutRaw(CF_DIB, dib);
    TPicture picture;
    ASSERT_TRUE(Clipboard()->GetPicture(picture));
    TBitmap read;
    read.Assign(picture.Graphic());
    EXPECT_EQ(read.Width(), 3);
    EXPECT_EQ(read.Canvas()->Pixels(0, 0), static_cast<TColor>(0x0000FF)) << png;
    EXPECT_EQ(read.Canvas()->Pixels(2, 1), static_cast<TColor>(0x00FF00)) << png;
    EXPECT_EQ(read.Canvas()->Pixels(1, 1), clWhite) << png;
  }
  EXPECT_THROW(Clipboard()->SetPicture(TBitmap()), EInvalidGraphic);
  EXPECT_TRUE(Clipboard()->Has(dkPicture)) << "what was there stays";
  PutRaw(CF_DIB, "no picture");
  TPicture picture;
  EXPECT_THROW(Clipboard()->GetPicture(picture), EInvalidGraphic);
  EXPECT_EQ(picture.Graphic(), nullptr);
}

TEST_F(Transfer, APngKeepsWhatItCoversOnlyInPart) {
  TPngImage png;
  MakeHalfRed(png);
  ASSERT_TRUE(png.HasAlpha());
  Clipboard()->SetPicture(png);
  TPicture picture;
  ASSERT_TRUE(Clipboard()->GetPicture(picture));
  const auto* read = dynamic_cast<const TPngImage*>(picture.Graphic());
  ASSERT_TRUE(read);
  EXPECT_TRUE(read->HasAlpha());
  const auto* row = static_cast<const unsigned char*>(read->Pixels().ScanLine(0));
  EXPECT_EQ(row[3], 0x80);
  EXPECT_EQ(row[7], 0);
}

TEST_F(Transfer, SeveralFormatsStandSideBySideAndReplaceWhatWasThere) {
  const TTransferFormat own = RegisterTransferFormat("Transfer test");
  EXPECT_EQ(RegisterTransferFormat("transfer TEST"), own);
  EXPECT_EQ(TransferFormatName(own), "Transfer test");
  EXPECT_EQ(TransferFormatName(tfFiles), "Files");
  TDataObject data;
  data.SetText("both");
  TStringStream stream(std::string("\0\1\2", 3));
  data.SetStream(own, stream);
  Clipboard()->Put(data);
  EXPECT_TRUE(Clipboard()->HasFormat(own));
  EXPECT_EQ(Clipboard()->AsText(), "both");
  TStringStream read;
  EXPECT_TRUE(Clipboard()->Read(own, read));
  EXPECT_EQ(read.DataString().substr(0, 3), std::string("\0\1\2", 3));
  {
    const TClipboardTurn outer;
    Clipboard()->SetAsText("first");
    const TClipboardTurn inner;
    Clipboard()->SetBytes(own, "second");
    EXPECT_EQ(Clipboard()->AsText(), "first");
  }
  EXPECT_EQ(Clipboard()->AsText(), "first");
  EXPECT_EQ(Clipboard()->Bytes(own)->substr(0, 6), "second");
  TDataObject copy;
  copy.Assign(*Clipboard());
  EXPECT_EQ(copy.AsText(), "first");
  Clipboard()->SetAsText("alone");
  EXPECT_FALSE(Clipboard()->HasFormat(own));
  EXPECT_FALSE(Clipboard()->Bytes(own));
  EXPECT_THROW(Clipboard()->Close(), EInvalidOperation);
}

TEST_F(Transfer, ComponentsGoAsTheirTextForm) {
  RegisterStandardClasses();
  auto* panel = new TPanel(&Form);
  panel->SetName("Box");
  panel->SetParent(&Form);
  auto* button = new TButton(&Form);
  button->SetName("Inside");
  button->SetCaption("gr\xC3\xBC\xC3\x9F");
  button->SetParent(panel);
  Clipboard()->SetComponent(*panel);
  EXPECT_EQ(Clipboard()->AsText().substr(0, 18), "object Box: TPanel");
  TForm other(nullptr);
  auto* read = dynamic_cast<TPanel*>(Clipboard()->GetComponent(&other, &other));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->Parent(), &other);
  const auto* inside = dynamic_cast<TButton*>(other.FindComponent("Inside"));
  ASSERT_TRUE(inside);
  EXPECT_EQ(inside->Caption(), button->Caption());
  EXPECT_EQ(inside->Parent(), read);
  Clipboard()->SetBytes(ComponentTransferFormat(), "object Bad: TNoSuchClass\nend\n");
  EXPECT_THROW(Clipboard()->GetComponent(&other, &other), EClassNotFound);
  Clipboard()->SetAsText("object Box: TPanel\nend\n");
  EXPECT_EQ(Clipboard()->GetComponent(&other, &other), nullptr) << "a text is no component";
}

TEST_F(Transfer, WhoHoldsTheClipboardIsNamed) {
  Clipboard()->SetAsText("before");
  // Another thread's window stands for another program's.
  HWND holder = nullptr;
  std::atomic<int> step = 0;
  std::thread other([&] {
    holder = ::CreateWindowExW(0, L"STATIC", L"The holder", 0, 0, 0, 1, 1, nullptr, nullptr,
                               nullptr, nullptr);
    ::OpenClipboard(holder);
    step = 1;
    while (step == 1) ::Sleep(5);
    ::CloseClipboard();
    ::DestroyWindow(holder);
  });
  while (step == 0) ::Sleep(5);
  try {
    Clipboard()->SetAsText("after");
    ADD_FAILURE() << "nothing was raised";
  } catch (const EClipboardInUse& error) {
    EXPECT_EQ(error.Window(), holder);
    EXPECT_EQ(error.Process(), ::GetCurrentProcessId());
    EXPECT_NE(error.Message().find("\"The holder\""), std::string::npos) << error.Message();
    EXPECT_NE(error.Message().find("test_vcl"), std::string::npos) << error.Message();
  }
  std::thread release([&] {
    ::Sleep(60);
    step = 2;
  });
  EXPECT_EQ(Clipboard()->AsText(), "before") << "it is tried again for a while";
  release.join();
  other.join();
}

TEST_F(Transfer, AllMonitorsHearOfChanges) {
  auto* first = new TClipboardMonitor(nullptr);
  TClipboardMonitor second(nullptr), disabled(nullptr);
  disabled.SetEnabled(false);
  disabled.OnChange = [](TObject*) { ADD_FAILURE(); };
  int heard = 0;
  PumpFor(50);
  first->OnChange = [&](TObject*) {
    delete first;
    throw Exception("raised by the first");
  };
  second.OnChange = [&](TObject*) { ++heard; };
  Clipboard()->SetAsText("news");
  EXPECT_TRUE(PumpUntil([&] { return heard > 0; }));
  EXPECT_EQ(std::exchange(Errors, {}), "raised by the first");
  second.SetEnabled(false);
  heard = 0;
  Clipboard()->SetAsText("more");
  PumpFor(50);
  EXPECT_EQ(heard, 0);
}

// Dragging between programs, as the system calls its targets.

class OleDrag : public TStandardForm {
 protected:
  OleDrag() : Target(new TDropTarget(&Form)), Panel(new TPanel(&Form)) {
    Panel->SetParent(&Form);
    Panel->SetBounds(40, 30, 100, 80);
    Target->SetControl(Panel);
    ShowForm();
    Own.SetText("dragged");
  }
  /// What the system has for the window; null when nothing is registered.
  static IDropTarget* Registered(TWinControl* control) {
    return static_cast<IDropTarget*>(::GetPropW(control->Handle(), L"OleDropTargetInterface"));
  }
  POINTL Place(int x, int y) const {
    const TPoint screen = Panel->ClientToScreen({x, y});
    return {screen.X, screen.Y};
  }
  DWORD Enter(DWORD keys = 0, DWORD allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE) {
    return With([&](IDropTarget& target, IDataObject* data, DWORD& effect) {
      effect = allowed;
      EXPECT_EQ(target.DragEnter(data, keys, Place(5, 6), &effect), S_OK);
    });
  }
  DWORD Over(DWORD keys = 0, DWORD allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE) {
    return With([&](IDropTarget& target, IDataObject*, DWORD& effect) {
      effect = allowed;
      EXPECT_EQ(target.DragOver(keys, Place(7, 8), &effect), S_OK);
    });
  }
  DWORD Drop(DWORD keys = 0, DWORD allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE) {
    return With([&](IDropTarget& target, IDataObject* data, DWORD& effect) {
      effect = allowed;
      EXPECT_EQ(target.Drop(data, keys, Place(9, 10), &effect), S_OK);
    });
  }
  template <class Call>
  DWORD With(Call call) {
    IDropTarget* const target = Target->Interface();
    IDataObject* const data = Own.Interface();
    DWORD effect = 0;
    target->AddRef();
    call(*target, data, effect);
    target->Release();
    data->Release();
    return effect;
  }
  TDropTarget* Target;
  TPanel* Panel;
  TDataObject Own;
};

TEST_F(OleDrag, OffersTheEffectOfTheKeysAndTellsTheHandlers) {
  std::vector<std::string> log;
  Target->OnDragEnter = [&](TObject* sender, const TDropInfo& info, TDropEffect& effect) {
    EXPECT_EQ(sender, Target);
    EXPECT_EQ(info.Data.AsText(), "dragged");
    EXPECT_EQ(info.Position, TPoint(5, 6));
    EXPECT_EQ(info.Allowed, (TDropEffects{deCopy, deMove}));
    EXPECT_TRUE(info.Shift.Has(ssShift));
    log.push_back("enter " + std::to_string(effect));
  };
  Target->OnDragLeave = [&](TObject*) { log.push_back("leave"); };
  EXPECT_EQ(Enter(MK_SHIFT), DWORD{DROPEFFECT_MOVE});
  EXPECT_EQ(Over(MK_CONTROL), DWORD{DROPEFFECT_COPY});
  EXPECT_EQ(Over(MK_CONTROL | MK_SHIFT), DWORD{DROPEFFECT_NONE}) << "no link is allowed";
  Target->Interface()->DragLeave();
  EXPECT_EQ(log, (std::vector<std::string>{"enter 2", "leave"}));
  Target->OnDragEnter = nullptr;
  Target->OnDragOver = [&](TObject*, const TDropInfo&, TDropEffect& effect) { effect = deLink; };
  EXPECT_EQ(Enter(), DWORD{DROPEFFECT_COPY});
  EXPECT_EQ(Over(), DWORD{DROPEFFECT_NONE}) << "what is not allowed is none";
  log.clear();
  Target->OnDrop = [&](TObject*, const TDropInfo&, TDropEffect&) { log.push_back("drop"); };
  EXPECT_EQ(Drop(), DWORD{DROPEFFECT_NONE});
  EXPECT_EQ(log, std::vector<std::string>{"leave"}) << "what was refused is not dropped";
  Target->OnDragOver = nullptr;
  Target->OnDrop = [&](TObject*, const TDropInfo& info, TDropEffect& effect) {
    log.push_back(info.Data.AsText());
    effect = deMove;
  };
  log.clear();
  Enter();
  EXPECT_EQ(Drop(), DWORD{DROPEFFECT_MOVE});
  EXPECT_EQ(log, std::vector<std::string>{"dragged"});
}

TEST_F(OleDrag, OnlyDataOfItsKindsAndFormatsIsTaken) {
  bool asked = false;
  Target->OnDragEnter = [&](TObject*, const TDropInfo&, TDropEffect&) { asked = true; };
  Target->SetKinds({dkFiles});
  EXPECT_EQ(Enter(), DWORD{DROPEFFECT_NONE});
  EXPECT_FALSE(asked);
  EXPECT_EQ(Drop(), DWORD{DROPEFFECT_NONE});
  Target->Formats()->Add("Transfer test");
  EXPECT_EQ(Enter(), DWORD{DROPEFFECT_NONE});
  Own.SetBytes(RegisterTransferFormat("Transfer test"), "x");
  EXPECT_EQ(Enter(), DWORD{DROPEFFECT_COPY});
  EXPECT_TRUE(asked);
  Target->SetEnabled(false);
  EXPECT_EQ(Enter(), DWORD{DROPEFFECT_NONE});
}

TEST_F(OleDrag, FollowsTheWindowAndHasItsControlAlone) {
  ASSERT_TRUE(Registered(Panel));
  const HWND former = Panel->Handle();
  Form.SetBorderStyle(bsDialog);
  ASSERT_NE(Panel->Handle(), former);
  EXPECT_TRUE(Registered(Panel)) << "the window has been made anew";
  TDropTarget other(nullptr);
  EXPECT_THROW(other.SetControl(Panel), EInvalidOperation);
  other.SetControl(&Form);
  EXPECT_TRUE(Registered(&Form));
  other.SetControl(nullptr);
  EXPECT_FALSE(Registered(&Form));
  Target->SetControl(&Form);
  EXPECT_FALSE(Registered(Panel));
  Target->SetControl(Panel);
  delete Panel;
  EXPECT_EQ(Target->Control(), nullptr);
}

TEST_F(OleDrag, HandlersMayRaiseAndFree) {
  Target->OnDragEnter = [](TObject*, const TDropInfo&, TDropEffect&) {
    throw Exception("raised inside");
  };
  EXPECT_EQ(Enter(), DWORD{DROPEFFECT_NONE});
  EXPECT_EQ(std::exchange(Errors, {}), "raised inside");
  Target->OnDragEnter = nullptr;
  Target->OnDrop = [&](TObject*, const TDropInfo& info, TDropEffect&) {
    delete Panel;
    delete Target;
    EXPECT_EQ(info.Data.AsText(), "dragged") << "the data is there till the end";
  };
  Enter();
  IDropTarget* const kept = Target->Interface();
  kept->AddRef();
  EXPECT_EQ(Drop(), DWORD{DROPEFFECT_COPY});
  DWORD effect = DROPEFFECT_COPY;
  EXPECT_EQ(kept->DragOver(0, {0, 0}, &effect), S_OK);
  EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE}) << "nobody is there any more";
  kept->Release();
}

TEST_F(OleDrag, DataIsReadThroughTheSystemsInterface) {
  Own.SetFiles({"C:\\a.txt"});
  IDataObject* const data = Own.Interface();
  Own.Clear();
  FORMATETC format{CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
  EXPECT_EQ(data->QueryGetData(&format), S_OK);
  STGMEDIUM medium{};
  ASSERT_EQ(data->GetData(&format, &medium), S_OK);
  EXPECT_EQ(::DragQueryFileW(static_cast<HDROP>(medium.hGlobal), ~0U, nullptr, 0), 1u);
  ::ReleaseStgMedium(&medium);
  format.tymed = TYMED_ISTREAM;
  EXPECT_EQ(data->GetData(&format, &medium), DV_E_TYMED);
  format = {CF_BITMAP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
  EXPECT_EQ(data->GetData(&format, &medium), DV_E_FORMATETC);
  // The shell leaves notes in what is dragged.
  format.cfFormat = static_cast<CLIPFORMAT>(RegisterTransferFormat("Transfer note"));
  medium = {};
  medium.tymed = TYMED_HGLOBAL;
  medium.hGlobal = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 4);
  EXPECT_EQ(data->SetData(&format, &medium, TRUE), S_OK);
  EXPECT_EQ(data->QueryGetData(&format), S_OK);
  EXPECT_EQ(data->Release(), 0u);
}

TEST_F(OleDrag, TheMouseDragsFromControlToControl) {
  auto* source = new TPanel(&Form);
  source->SetParent(&Form);
  source->SetBounds(180, 30, 80, 80);
  Form.Update();
  std::string dropped;
  TDropEffect done = deNone;
  source->OnMouseDown = [&](TObject*, TMouseButton, TShiftState, int, int) {
    // The drag has a loop of its own: the mouse goes on from elsewhere.
    const TPoint to = MiddleOf(Panel);
    std::thread mouse([to] {
      for (const int step : {0, 1, 2}) {
        ::Sleep(100);
        ::SetCursorPos(to.X + step, to.Y);
      }
      ::Sleep(100);
      INPUT input{};
      input.type = INPUT_MOUSE;
      input.mi.dwFlags = MOUSEEVENTF_LEFTUP;
      ::SendInput(1, &input, sizeof input);
    });
    done = BeginOleDrag(source, Own, {deCopy, deMove});
    mouse.join();
  };
  int clicks = 0;
  source->OnClick = [&](TObject*) { ++clicks; };
  Target->OnDrop = [&](TObject*, const TDropInfo& info, TDropEffect& effect) {
    dropped = info.Data.AsText();
    effect = deMove;
  };
  MoveMouse(MiddleOf(source));
  LeftDown();
  EXPECT_TRUE(PumpUntil([&] { return !dropped.empty(); }));
  EXPECT_EQ(dropped, "dragged");
  EXPECT_EQ(done, deMove);
  EXPECT_EQ(clicks, 0);
  EXPECT_THROW(BeginOleDrag(source, Own, {}), EArgumentOutOfRangeException);
}

// Files that are dropped on a form.

TEST_F(Transfer, AFormTakesDroppedFilesWhileAHandlerIsBound) {
  ShowForm();
  const auto accepts = [&] {
    return (::GetWindowLongPtrW(Form.Handle(), GWL_EXSTYLE) & WS_EX_ACCEPTFILES) != 0;
  };
  EXPECT_FALSE(accepts());
  std::vector<std::string> names;
  TPoint place;
  Form.OnDropFiles = [&](TObject*, const std::vector<std::string>& files, TPoint position) {
    names = files;
    place = position;
  };
  ::PostMessageW(Form.Handle(), WM_NULL, 0, 0);
  Application()->OnIdle = [](TObject*, bool& done) { done = false; };
  Application()->ProcessMessages();
  Application()->HandleMessage();
  EXPECT_TRUE(accepts());
  Form.SetBorderStyle(bsDialog);
  EXPECT_TRUE(accepts()) << "the window has been made anew";
  std::vector<std::string> many;
  for (int i = 0; i < 500; ++i) many.push_back("C:\\" + std::string(300, 'n') + std::to_string(i));
  ::SendMessageW(Form.Handle(), WM_DROPFILES, reinterpret_cast<WPARAM>(MakeDrop(many, {3, 4})), 0);
  EXPECT_EQ(names, many);
  EXPECT_EQ(place, TPoint(3, 4));
  Form.OnDropFiles = nullptr;
  Application()->ProcessMessages();
  Application()->HandleMessage();
  Application()->OnIdle = nullptr;
  EXPECT_FALSE(accepts());
}

}  // namespace
}  // namespace vcl
