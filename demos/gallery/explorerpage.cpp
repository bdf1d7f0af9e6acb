// The page of the explorer tree.
#include "demos/gallery/galleryform.h"
#include "vcl/rtl/text.h"

namespace gallery {

namespace {

const std::vector<TSetting> ExplorerSettings = {
    {"ExplorerNetworkCheck", "Network"},     {"ExplorerFastLoadCheck", "FastLoad"},
    {"ExplorerReadOnlyCheck", "ReadOnly"},   {"ExplorerLinesCheck", "ShowLines"},
    {"ExplorerButtonsCheck", "ShowButtons"}, {"ExplorerDirectoryEdit", "Directory"},
};

}  // namespace

void TGalleryForm::SetUpExplorer() {
  TSettingBinder& settings = Bind(ExplorerSettings);
  settings.SetTargets({SampleExplorer});
  SampleExplorer->OnChange = [shown = &settings](vcl::TObject*, vcl::TTreeNode*) {
    shown->Refresh();
  };
}

void TGalleryForm::ExplorerAddClick(vcl::TObject*) {
  const std::string start = "New folder";
  std::string name = start;
  for (int i = 2; SampleExplorer->GetNodeFromPath(SampleExplorer->Directory() + name); ++i) {
    name = vcl::Concat(start, " ", std::to_string(i));
  }
  qel::TQELExplorerNode* added = SampleExplorer->AddPath(name);
  if (!added) return;
  added->SetSelected(true);
  added->EditText();
}

}  // namespace gallery
