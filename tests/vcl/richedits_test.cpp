// Rich edits: looks of text and paragraphs, files, protection; and clips.
#include <filesystem>
#include <fstream>

#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/rtl/utf16.h"

// Needs the system's other headers.
#include <richedit.h>

namespace vcl {
namespace {

class RichEdits : public TStandardForm {
 protected:
  TRecreatable<TRichEdit>* MakeRich() {
    auto* edit = Make<TRichEdit>(10, 10);
    edit->SetBounds(10, 10, 400, 200);
    return edit;
  }
  static void Select(TCustomEdit& edit, int start, int length) {
    edit.SetSelStart(start);
    edit.SetSelLength(length);
  }
  static std::string InTemp(const char* name) {
    wchar_t folder[MAX_PATH];
    ::GetTempPathW(MAX_PATH, folder);
    return ToUtf8(folder) + name;
  }
};

TEST_F(RichEdits, LinesAreThoseOfAMemo) {
  for (const bool window : {false, true}) {
    auto* edit = MakeRich();
    if (window) edit->HandleNeeded();
    edit->Lines()->SetCommaText("one,zwölf,drei");
    edit->Lines()->SetStrings(1, "two");
    edit->Lines()->Insert(1, "1½");
    edit->Lines()->Delete(3);
    edit->Lines()->Add("end");
    EXPECT_EQ(edit->Lines()->CommaText(), "one,1½,two,end") << window;
    Select(*edit, 4, 2);
    EXPECT_EQ(edit->SelText(), window ? "1½" : edit->SelText());
    delete edit;
  }
}

TEST_F(RichEdits, TheSelectionHasALookThatOutlivesTheWindow) {
  auto* edit = MakeRich();
  edit->SetText("plain loud\r\nitem");
  ShowForm();
  Select(*edit, 6, 4);
  edit->SelAttributes().SetStyle({fsBold, fsUnderline});
  edit->SelAttributes().SetSize(20.5);
  edit->SelAttributes().SetColor(clRed);
  edit->SelAttributes().SetName("Courier New");
  edit->Paragraph().SetAlignment(taCenter);
  edit->Paragraph().SetFirstIndent(30);
  edit->Paragraph().SetLeftIndent(10);
  edit->Paragraph().SetRightIndent(7);
  edit->Paragraph().SetTabs({50, 120});
  Select(*edit, 11, 4);
  edit->Paragraph().SetNumbering(nsBullet);
  Select(*edit, 6, 4);
  EXPECT_EQ(edit->Paragraph().FirstIndent(), 30);
  EXPECT_EQ(edit->Paragraph().LeftIndent(), 10);
  for (const char* when : {"set", "the window made anew", "scaled"}) {
    Select(*edit, 6, 4);
    EXPECT_EQ(edit->SelText(), "loud") << when;
    EXPECT_EQ(edit->SelAttributes().Style(), (TFontStyles{fsBold, fsUnderline})) << when;
    EXPECT_EQ(edit->SelAttributes().Size(), 20.5) << when;
    EXPECT_EQ(edit->SelAttributes().Color(), clRed) << when;
    EXPECT_EQ(edit->SelAttributes().Name(), "Courier New") << when;
    EXPECT_EQ(edit->Paragraph().Alignment(), taCenter) << when;
    EXPECT_EQ(edit->Paragraph().Numbering(), nsNone) << when;
    EXPECT_EQ(edit->Paragraph().RightIndent(), 7) << when;
    ASSERT_EQ(edit->Paragraph().TabCount(), 2) << when;
    EXPECT_EQ(edit->Paragraph().Tab(1), 120) << when;
    Select(*edit, 11, 4);
    EXPECT_EQ(edit->Paragraph().Numbering(), nsBullet) << when;
    Select(*edit, 0, 5);
    EXPECT_EQ(edit->SelAttributes().Style(), TFontStyles()) << when;
    EXPECT_EQ(edit->SelAttributes().Size(), 8) << when;
    if (std::string(when) == "set") edit->RecreateWnd();
    if (std::string(when) != "set") Form.ScaleBy(2, 1);
  }
  EXPECT_THROW(edit->SelAttributes().SetSize(0), EArgumentOutOfRangeException);
  EXPECT_THROW(edit->Paragraph().Tab(2), EListError);
  EXPECT_THROW(edit->Paragraph().SetTabs(std::vector<int>(33)), EArgumentOutOfRangeException);
}

TEST_F(RichEdits, TheFontIsTheLookOfTextWithoutOne) {
  auto* edit = MakeRich();
  ShowForm();
  edit->SetText("text");
  edit->Font()->SetName("Arial");
  edit->Font()->SetSize(12);
  edit->Font()->SetColor(clBlue);
  Select(*edit, 0, 4);
  EXPECT_EQ(edit->SelAttributes().Name(), "Arial");
  EXPECT_EQ(edit->SelAttributes().Size(), 12);
  EXPECT_EQ(edit->DefAttributes().Color(), clBlue);
  edit->DefAttributes().SetSize(30);
  edit->RecreateWnd();
  EXPECT_EQ(edit->DefAttributes().Size(), 30);
}

TEST_F(RichEdits, RtfAndTextAreSavedAndLoaded) {
  auto* edit = MakeRich();
  ShowForm();
  edit->SetText("Grüße\r\nlaut");
  Select(*edit, 6, 4);
  edit->SelAttributes().SetStyle({fsBold});
  const std::string rtf = InTemp("rich.rtf");
  const std::string txt = InTemp("rich.txt");
  edit->SaveToFile(rtf);
  EXPECT_THAT(edit->Rtf(), ::testing::StartsWith("{\\rtf1\\ansi"));
  edit->SetPlainText(true);
  edit->SaveToFile(txt);
  edit->SetPlainText(false);
  edit->Clear();
  edit->LoadFromFile(rtf);
  EXPECT_THAT(edit->Lines()->CommaText(), ::testing::StartsWith("Grüße,laut"));
  EXPECT_FALSE(edit->Modified());
  Select(*edit, 6, 4);
  EXPECT_EQ(edit->SelAttributes().Style(), TFontStyles{fsBold});
  TStringStream plain;
  edit->LoadFromFile(txt);
  EXPECT_EQ(edit->Text(), "Grüße\r\nlaut");
  edit->SetPlainText(true);
  edit->LoadFromFile(rtf);
  EXPECT_THAT(edit->Text(), ::testing::StartsWith("{\\rtf")) << "its source";
  edit->SetText("kept");
  edit->SetPlainText(false);
  TStringStream cut("{\\rtf1\\ansi{\\b bold");
  EXPECT_THROW(edit->LoadFromStream(cut), EReadError);
  EXPECT_THROW(edit->SetRtf("no rtf"), EReadError);
  EXPECT_THROW(edit->LoadFromFile(InTemp("no such file.rtf")), EFOpenError);
  EXPECT_EQ(edit->Text(), "kept");
  std::filesystem::remove(rtf);
  std::filesystem::remove(txt);
}

TEST_F(RichEdits, TextIsFound) {
  auto* edit = MakeRich();
  edit->SetText("A cat,\r\ncatalogue, Cat");
  EXPECT_EQ(edit->FindText("cat", 0, 100), 2);
  EXPECT_EQ(edit->FindText("cat", 3, 100), 7);
  EXPECT_EQ(edit->FindText("cat", 3, 100, {stWholeWord}), 18);
  EXPECT_EQ(edit->FindText("Cat", 0, 100, {stMatchCase}), 18);
  EXPECT_EQ(edit->FindText("dog", 0, 100), -1);
  EXPECT_EQ(edit->FindText("Cat", 3, 5, {stMatchCase}), -1);
}

TEST_F(RichEdits, ProtectedTextIsAskedForAndTheLimitHolds) {
  auto* edit = MakeRich();
  edit->SetText("fixed");
  ShowForm();
  edit->SetFocus();
  edit->SelectAll();
  edit->SelAttributes().SetProtected(true);
  int selections = 0;
  edit->OnSelectionChange = [&](TObject*) { ++selections; };
  Select(*edit, 2, 0);
  EXPECT_GT(selections, 0);
  EXPECT_TRUE(edit->SelAttributes().Protected());
  // As the system asks before it changes protected text; not every system does.
  const auto ask = [edit] {
    ENPROTECTED notice{};
    notice.nmhdr = {edit->Handle(), 0, EN_PROTECTED};
    notice.chrg = {2, 3};
    return ::SendMessageW(::GetParent(edit->Handle()), WM_NOTIFY, 0,
                          reinterpret_cast<LPARAM>(&notice));
  };
  EXPECT_EQ(ask(), 1) << "nobody allows it";
  std::string asked;
  edit->OnProtectChange = [&](TObject*, int start, int end, bool& allow) {
    asked += std::to_string(start) + "-" + std::to_string(end);
    allow = true;
  };
  EXPECT_EQ(ask(), 0);
  EXPECT_EQ(asked, "2-3");
  edit->SetText("");
  edit->SetMaxLength(3);
  Type("abcde");
  EXPECT_EQ(edit->Text(), "abc");
  edit->Undo();
  EXPECT_NE(edit->Text(), "abc");
}

TEST_F(RichEdits, EditActionsWorkInThem) {
  auto* edit = MakeRich();
  edit->SetText("word");
  ShowForm();
  edit->SetFocus();
  TEditSelectAll select(nullptr);
  TEditCut cut(nullptr);
  TEditPaste paste(nullptr);
  select.Execute();
  EXPECT_EQ(edit->SelLength(), 4);
  cut.Execute();
  EXPECT_EQ(edit->Text(), "");
  paste.Execute();
  paste.Execute();
  EXPECT_EQ(edit->Text(), "wordword");
}

TEST_F(RichEdits, FormFilesKeepTheLines) {
  RegisterStandardClasses();
  auto* edit = MakeRich();
  edit->SetName("Rich");
  edit->Lines()->SetCommaText("a,b");
  edit->SetPlainText(true);
  TForm read(nullptr);
  ReadForm(FormText(&Form), &read);
  const auto* again = dynamic_cast<TRichEdit*>(read.FindComponent("Rich"));
  ASSERT_TRUE(again);
  EXPECT_EQ(again->Lines()->CommaText(), "a,b");
  EXPECT_TRUE(again->PlainText());
}

void Put(std::string& bytes, std::uint32_t number) {
  for (int i = 0; i < 4; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

std::string Chunk(const std::string& id, const std::string& data) {
  std::string chunk = id;
  Put(chunk, static_cast<std::uint32_t>(data.size()));
  return chunk + data + std::string(data.size() % 2, '\0');
}

/// A clip of 16 by 8 pixels without compression, red, green and blue.
std::string Clip() {
  constexpr std::uint32_t width = 16, height = 8, frames = 3, size = width * height * 3;
  std::string head;
  for (const std::uint32_t each :
       {100000u, 0u, 0u, 0x10u, frames, 0u, 1u, size, width, height, 0u, 0u, 0u, 0u}) {
    Put(head, each);
  }
  std::string stream = "vidsDIB ";
  for (const std::uint32_t each :
       {0u, 0u, 0u, 1u, 10u, 0u, frames, size, 0xFFFFFFFFu, 0u, 0u, height << 16 | width}) {
    Put(stream, each);
  }
  std::string format;
  for (const std::uint32_t each : {40u, width, height, 24u << 16 | 1u, 0u, size, 0u, 0u, 0u, 0u}) {
    Put(format, each);
  }
  std::string movie = "movi";
  std::string index;
  for (std::uint32_t i = 0; i < frames; ++i) {
    std::string pixels;
    for (std::uint32_t p = 0; p < width * height; ++p) {
      for (std::uint32_t c = 0; c < 3; ++c) pixels += static_cast<char>(c == 2 - i ? 0xFF : 0);
    }
    index += "00db";
    Put(index, 0x10);
    Put(index, static_cast<std::uint32_t>(movie.size()));
    Put(index, size);
    movie += Chunk("00db", pixels);
  }
  const std::string list = Chunk("LIST", "strl" + Chunk("strh", stream) + Chunk("strf", format));
  return Chunk("RIFF", "AVI " + Chunk("LIST", "hdrl" + Chunk("avih", head) + list) +
                           Chunk("LIST", movie) + Chunk("idx1", index));
}

TEST_F(RichEdits, AClipIsPlayed) {
  const std::string name = InTemp("clip.avi");
  std::ofstream(name, std::ios::binary) << Clip();
  auto* animate = Make<TAnimate>(10, 10);
  std::string heard;
  animate->OnOpen = [&](TObject*) { heard += "open "; };
  animate->OnClose = [&](TObject*) { heard += "close "; };
  animate->OnStart = [&](TObject*) { heard += "start "; };
  animate->OnStop = [&](TObject*) { heard += "stop "; };
  ShowForm();
  animate->SetTransparent(false);
  animate->SetRepetitions(1);
  animate->SetFileName(name);
  EXPECT_TRUE(animate->Open());
  EXPECT_EQ(animate->FrameCount(), 3);
  EXPECT_EQ(animate->Width(), 16);
  EXPECT_EQ(animate->Height(), 8);
  animate->SetActive(true);
  EXPECT_TRUE(testinput::PumpUntil([&] { return !animate->Active(); })) << heard;
  EXPECT_EQ(heard, "open start stop ");
  animate->Seek(2);
  testinput::PumpFor(200);
  const HDC dc = ::GetDC(animate->Handle());
  EXPECT_EQ(::GetPixel(dc, 5, 4), RGB(0, 255, 0));
  ::ReleaseDC(animate->Handle(), dc);
  EXPECT_THROW(animate->Seek(4), EArgumentOutOfRangeException);
  EXPECT_THROW(animate->SetFileName(InTemp("no such clip.avi")), EAnimateError);
  EXPECT_EQ(animate->FileName(), name);
  EXPECT_TRUE(animate->Open());
  EXPECT_THROW(animate->SetRepetitions(-1), EArgumentOutOfRangeException);
  heard.clear();
  animate->SetFileName("");
  EXPECT_EQ(heard, "close ");
  EXPECT_FALSE(animate->Open());
  std::filesystem::remove(name);
}

TEST_F(RichEdits, AClipThatIsMissingDoesNotEndTheForm) {
  RegisterStandardClasses();
  TForm read(nullptr);
  ReadForm(
      "object Read: TForm\n"
      "  object Clip: TAnimate\n    FileName = 'no such clip.avi'\n    Active = True\n  end\n"
      "  object Behind: TEdit\n  end\nend\n",
      &read);
  EXPECT_THAT(std::exchange(Errors, {}), ::testing::HasSubstr("no such clip.avi"));
  EXPECT_TRUE(read.FindComponent("Behind"));
  const auto* clip = dynamic_cast<TAnimate*>(read.FindComponent("Clip"));
  ASSERT_TRUE(clip);
  EXPECT_FALSE(clip->Open());
  EXPECT_EQ(clip->FileName(), "no such clip.avi") << "as it will be saved again";
}

}  // namespace
}  // namespace vcl
