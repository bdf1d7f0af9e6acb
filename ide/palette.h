// TComponentPalette: the component classes that can be put on a form, on pages.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ide/palettepage.h"
#include "vcl/designintf/registration.h"
#include "vcl/stdctrls/comctrls.h"
#include "vcl/stdctrls/stdctrls.h"

namespace ide {

/// Pages of buttons. A click takes a class's tool, with Shift so that it stays for several
/// components; a double click asks for a component at once. What is typed in the edit at the right
/// leaves the classes whose name contains it, and the pages that have some.
class TComponentPalette : public vcl::TWinControl {
 public:
  explicit TComponentPalette(vcl::TComponent* owner);
  ~TComponentPalette() override;

  /// Shows what has been registered: each page once and each class once on it, in order. The
  /// pointer is taken.
  void SetPages(const std::vector<vcl::TPaletteEntry>& entries);
  /// Forgets all classes, as before their package goes.
  void Clear() { SetPages({}); }
  const TPaletteTool& Tool() const { return FTool; }
  void SelectTool(const vcl::TClass* aClass, bool keep = false);
  /// A component has been made with the tool: takes the pointer, unless the tool is to stay.
  void Placed();
  const std::string& Filter() const { return FFilter; }
  /// Compared without case; empty for all classes.
  void SetFilter(const std::string& filter);

  vcl::TPageControl& Pages() const { return *FPages; }
  /// The page in front; null when there is none.
  TPalettePage* ActivePage() const;
  /// The buttons of the page of that name; null when there is none.
  TPalettePage* PageOf(const std::string& name) const;

  /// Another tool was taken.
  vcl::TNotifyEvent OnSelect;
  /// A component is wanted without a place for it.
  std::function<void(const vcl::TClass&)> OnAdd;

 protected:
  void Resize() override;

 private:
  /// A page with all its classes, those of them that are not shown too.
  struct TPage {
    std::string Name;
    vcl::TTabSheet* Sheet;
    TPalettePage* Buttons;
    std::vector<const vcl::TClass*> Classes;
  };
  TPage& PageFor(const std::string& name);
  void ShowPage(TPage& page);

  TPaletteTool FTool;
  std::string FFilter;
  std::vector<TPage> FPageList;
  vcl::TPageControl* FPages;
  vcl::TEdit* FFilterEdit;
};

/// Registers the class library's own components with the palette, on the pages Standard,
/// Additional, Win32, System, Data Access, Data Controls, Dialogs and Internet. To be called once,
/// before packages are loaded.
void RegisterStandardPages();

}  // namespace ide
