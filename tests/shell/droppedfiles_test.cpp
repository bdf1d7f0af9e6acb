// TQELDroppedFiles: which of a form takes which files, and where.
#include "qel/shell/Qeltdroppedfiles.h"

#include "tests/vcl/standardform.h"
#include "vcl/transfer/dataobject.h"
// It needs what stands above.
#include <ole2.h>

namespace qel {
namespace {

using TFiles = std::vector<std::string>;

class DroppedFiles : public vcl::TStandardForm {
 protected:
  DroppedFiles() {
    ShowForm();
    Data.SetFiles({"C:\\a.txt", "C:\\b\\gr\xC3\xBC.PNG", "C:\\c"});
  }
  std::unique_ptr<TQELDroppedFiles> Taker(vcl::TControl* control, const std::string& masks,
                                          const std::string& name) {
    auto made = std::make_unique<TQELDroppedFiles>(&Form);
    made->SetControl(control);
    made->SetMasks(masks);
    made->OnDrop = [this, name](vcl::TObject*, const TFiles& files, int x, int y) {
      Told += name + std::to_string(x) + "," + std::to_string(y) + ":";
      for (const std::string& each : files) Told += each + ";";
    };
    return made;
  }
  /// Drags the files there and drops them; what was offered before.
  DWORD Drop(vcl::TPoint at, DWORD allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE,
             DWORD keys = MK_LBUTTON) {
    Told.clear();
    auto* target = static_cast<IDropTarget*>(::GetPropW(Form.Handle(), L"OleDropTargetInterface"));
    if (!target) return Nowhere;
    at = Form.ClientToScreen(at);
    IDataObject* given = Data.Interface();
    DWORD offered = allowed;
    target->DragEnter(given, keys, {at.X, at.Y}, &offered);
    DWORD over = allowed;
    target->DragOver(keys, {at.X, at.Y}, &over);
    EXPECT_EQ(over, offered);
    DWORD effect = allowed;
    if (offered != DROPEFFECT_NONE) {
      target->Drop(given, keys, {at.X, at.Y}, &effect);
    } else {
      target->DragLeave();
    }
    given->Release();
    return offered;
  }
  static constexpr DWORD Nowhere = 99;
  vcl::TDataObject Data;
  std::string Told;
};

TEST_F(DroppedFiles, TheInnermostThatMeansThemTakesThem) {
  auto* panel = Make<vcl::TPanel>(100, 100);
  panel->SetBounds(100, 100, 200, 200);
  auto* label = Make<vcl::TLabel>(10, 20, panel);
  label->SetAutoSize(false);
  label->SetBounds(10, 20, 50, 30);
  const auto form = Taker(nullptr, "", "form");
  const auto ofLabel = Taker(label, "*.png", "png");
  auto second = Taker(label, "*.TXT;c", "text");
  EXPECT_EQ(Drop({5, 6}), DWORD{DROPEFFECT_COPY});
  EXPECT_EQ(Told, "form5,6:C:\\a.txt;C:\\b\\gr\xC3\xBC.PNG;C:\\c;");
  EXPECT_EQ(Drop({112, 123}), DWORD{DROPEFFECT_COPY});
  EXPECT_EQ(Told, "png2,3:C:\\b\\gr\xC3\xBC.PNG;text2,3:C:\\a.txt;C:\\c;");
  Drop({250, 250});
  EXPECT_EQ(Told.substr(0, 12), "form250,250:") << "the panel has none of its own";
  second.reset();
  label->SetEnabled(false);
  Drop({112, 123});
  EXPECT_EQ(Told.substr(0, 12), "form112,123:");
  label->SetEnabled(true);
  Data.SetFiles({"C:\\only.txt"});
  Drop({112, 123});
  EXPECT_EQ(Told, "form112,123:C:\\only.txt;");
}

TEST_F(DroppedFiles, FilesAreNeverMoved) {
  const auto taker = Taker(nullptr, "", "");
  EXPECT_EQ(Drop({5, 6}, DROPEFFECT_COPY | DROPEFFECT_MOVE, MK_LBUTTON | MK_SHIFT),
            DWORD{DROPEFFECT_COPY});
  EXPECT_EQ(Drop({5, 6}, DROPEFFECT_MOVE | DROPEFFECT_LINK), DWORD{DROPEFFECT_LINK});
  EXPECT_EQ(Drop({5, 6}, DROPEFFECT_MOVE), DWORD{DROPEFFECT_NONE});
  EXPECT_EQ(Told, "");
}

TEST_F(DroppedFiles, TheyMayBeRefused) {
  const auto taker = Taker(nullptr, "*.txt", "x");
  std::size_t seen = 0;
  taker->OnDragOver = [&](vcl::TObject*, const TFiles& files, int x, int, bool& accept) {
    seen = files.size();
    accept = x > 100;
  };
  EXPECT_EQ(Drop({5, 6}), DWORD{DROPEFFECT_NONE});
  EXPECT_EQ(seen, 1u);
  EXPECT_EQ(Drop({105, 6}), DWORD{DROPEFFECT_COPY});
  EXPECT_EQ(Told, "x105,6:C:\\a.txt;");
  Data.Clear();
  Data.SetBytes(vcl::tfFiles, "short");
  EXPECT_EQ(Drop({105, 6}), DWORD{DROPEFFECT_NONE}) << "damaged data";
  Data.Clear();
  Data.SetText("no files");
  EXPECT_EQ(Drop({105, 6}), DWORD{DROPEFFECT_NONE});
}

TEST_F(DroppedFiles, FollowsTheFormsWindowAndEndsWithItsControl) {
  auto first = Taker(nullptr, "", "first");
  auto* button = Make<vcl::TButton>(50, 50);
  const auto second = Taker(button, "", "button");
  const HWND former = Form.Handle();
  Form.SetBorderStyle(vcl::bsSizeable);
  ASSERT_NE(Form.Handle(), former);
  Drop({5, 6});
  EXPECT_EQ(Told.substr(0, 5), "first");
  first->SetActive(false);
  EXPECT_EQ(Drop({5, 6}), DWORD{DROPEFFECT_NONE});
  EXPECT_EQ(Drop({55, 56}), DWORD{DROPEFFECT_COPY}) << "the other one still does";
  first->SetActive(true);
  first->OnDrop = [&](vcl::TObject*, const TFiles&, int, int) { first.reset(); };
  EXPECT_EQ(Drop({5, 6}), DWORD{DROPEFFECT_COPY});
  EXPECT_EQ(first, nullptr);
  delete button;
  EXPECT_EQ(second->Control(), nullptr);
  EXPECT_EQ(Drop({55, 56}), DWORD{DROPEFFECT_NONE}) << "not the form instead";
  second->SetActive(false);
  EXPECT_EQ(Drop({55, 56}), Nowhere);
}

}  // namespace
}  // namespace qel
