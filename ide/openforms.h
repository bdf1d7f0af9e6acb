// TOpenForms: the forms that are open, each on a page with a tab, and the one that is worked on.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ide/formdesigner.h"
#include "ide/workspace.h"
#include "vcl/stdctrls/pagecontrol.h"

namespace ide {

class TOpenForms {
 public:
  /// The pages fill the window's remaining room; the window must outlive them.
  explicit TOpenForms(vcl::TWinControl& window);
  ~TOpenForms();
  TOpenForms(const TOpenForms&) = delete;
  TOpenForms& operator=(const TOpenForms&) = delete;

  /// All of them, in the order of the tabs.
  std::vector<TFormDesigner*> All() const;
  /// The one that is worked on; null before the first is activated.
  TFormDesigner* Active() const { return FActive; }
  /// Makes a page behind the others. Its document is to be given a form before it is activated.
  TFormDesigner& Add();
  /// Ends the designer. It is not the active one, unless it is the last.
  void Remove(TFormDesigner& designer);
  /// Shows the page, has the view options go over to it, and gives its form the keyboard.
  void Activate(TFormDesigner& designer);
  /// The one behind (or in front of) the active one; round the end.
  TFormDesigner& Next(bool forward) const;

  /// The one that has the file open; null for none.
  TFormDesigner* OfFile(const std::string& fileName) const;
  /// A name that no open form has: "Form1".
  std::string UniqueName(const std::string& stem) const;
  /// Shows the form's name on its tab and has its workspace reach as far as it does.
  void ShowChanged(const TFormDesigner& designer);
  /// Brings the active form's upper left corner into view.
  void ShowWhole();
  /// A form has changed, or (null) is gone: the others' references to it follow.
  void ShowOthers(const TFormDesigner* changed);
  /// Saves the form; what its components are called now counts for the others. Raises EInOutError,
  /// also for the file of another form that is open.
  void Save(TFormDesigner& designer, const std::string& fileName);
  vcl::TPageControl& Pages() { return *FPages; }

  /// The user clicked the tab of another form, which is to be activated.
  std::function<void(TFormDesigner&)> OnWanted;

 private:
  struct TPage {
    vcl::TTabSheet* Sheet;  // A component of the page control's owner.
    TWorkspace* Workspace;  // A component of the sheet.
    std::unique_ptr<TFormDesigner> Designer;
  };
  TPage& PageOf(const TFormDesigner& designer);
  void TabChanged();

  vcl::TPageControl* FPages;  // A component of the window.
  std::vector<TPage> FOpen;
  TFormDesigner* FActive = nullptr;
  bool FFollowing = false;
};

/// How a form is called where there is little room: by its file's name without the folder, before
/// it has one by its own name.
std::string ShortName(TFormDesigner& designer);

}  // namespace ide
