// The page of the explorer tree.
#include "demos/gallery/galleryform.h"

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
  SampleExplorer->OnChange = [&settings](vcl::TObject*, vcl::TTreeNode*) { settings.Refresh(); };
}

}  // namespace gallery
