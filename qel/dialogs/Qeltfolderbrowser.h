// TQELFolderBrowser: the system's dialog for choosing a folder as a component.
#pragma once

#include <memory>
#include <string>

#include "qel/dialogs/Qelhelpdialog.h"
#include "vcl/rtl/sets.h"

namespace qel {

/// What the folder dialog offers beside the tree.
enum TQELFolderBrowserOption {
  fbNewFolder,  ///< A button that makes a folder. The dialog then is the one that can be sized.
  fbEdit,       ///< An edit for the folder's name.
  fbFiles,      ///< Files are shown too, and can be chosen.
  fbValidate    ///< A name that is typed and is none keeps the dialog open.
};
using TQELFolderBrowserOptions = vcl::TSet<TQELFolderBrowserOption>;

/// Sender, the path that is selected, whether OK is to be enabled, a text to be shown above the
/// tree; only the dialog without fbNewFolder shows that.
using TQELFolderSelectionEvent =
    vcl::TEvent<vcl::TObject*, const std::string&, bool&, std::string&>;

/// Lets the user choose a folder in the system's dialog (SHBrowseForFolderW), in front of the
/// active form.
class QEL_API TQELFolderBrowser : public TQELHelpDialog {
 public:
  explicit TQELFolderBrowser(vcl::TComponent* owner);
  ~TQELFolderBrowser() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Plays Sound and shows the dialog; true when a folder was chosen, which Folder then is. False
  /// when the user has cancelled; and without a dialog, as LastError then says, when Root is no
  /// folder. Raises EInvalidOperation when the component's dialog is up already.
  bool Execute() override;
  /// Why the last Execute has shown nothing; empty when it has.
  const std::string& LastError() const { return FLastError; }

  const std::string& Folder() const { return FFolder; }
  /// The path that is selected at first, and what was chosen.
  void SetFolder(const std::string& folder) { FFolder = folder; }
  const std::string& Title() const { return FTitle; }
  /// What stands above the tree.
  void SetTitle(const std::string& title) { FTitle = title; }
  const std::string& Root() const { return FRoot; }
  /// The folder at the tree's top; the desktop when empty.
  void SetRoot(const std::string& root) { FRoot = root; }
  TQELFolderBrowserOptions Options() const { return FOptions; }
  /// What the dialog offers beside the tree.
  void SetOptions(TQELFolderBrowserOptions options) { FOptions = options; }

  /// Something has been selected. What the handler raises is shown as what other events raise.
  TQELFolderSelectionEvent OnSelection;

 private:
  class TBox;

  std::string FFolder;
  std::string FTitle;
  std::string FRoot;
  TQELFolderBrowserOptions FOptions;
  std::string FLastError;
  std::unique_ptr<TBox> FBox;
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELFolderBrowserOption>{
    "TQELFolderBrowserOption", "fbNewFolder fbEdit fbFiles fbValidate", "TQELFolderBrowserOptions"};
template <>
inline constexpr vcl::TEventText vcl::EventText<qel::TQELFolderSelectionEvent>{
    "TQELFolderSelectionEvent",
    "vcl::TObject* sender, const std::string& folder, bool& enableOk, std::string& text"};
