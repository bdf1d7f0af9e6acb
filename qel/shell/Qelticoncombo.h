// TQELIconCombo and TQELIconListbox: the icons of a file.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/graphics/icon.h"
#include "vcl/stdctrls/combobox.h"
#include "vcl/stdctrls/listbox.h"

namespace qel {

class TQELIconLines;

/// A combo box of all icons in a program, a library or an icon file, each with its number. A file
/// that has none, is damaged or is not there leaves it empty.
class QEL_API TQELIconCombo : public vcl::TCustomComboBox {
 public:
  explicit TQELIconCombo(vcl::TComponent* owner);
  ~TQELIconCombo() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the combo box says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  const std::string& Filename() const;
  /// The file whose icons are shown. Another one selects its first icon.
  void SetFilename(const std::string& fileName);
  int IconSize() const;
  /// The icons' width and height in pixels at 96 dots per inch; smaller where the largest possible
  /// line is no higher. So many icons are shown as have 64 million pixels together. Refuses,
  /// silently, what is not between 1 and 256.
  void SetIconSize(int size);
  int IconIndex() const;
  /// The icon that is selected, 0 for the first. One that the file has not is kept, with no line
  /// selected. Refuses, silently, a number below -1.
  void SetIconIndex(int index);
  /// The selected icon, in the size of the lines; empty for none. It stays the combo box's.
  const vcl::TIcon& Icon();

 protected:
  void Change() override;
  void ChangeScale(int m, int d) override;
  void Loaded() override;

 private:
  std::unique_ptr<TQELAbout> FAbout;
  TQELIconLines* FIcons;  // The list's look.
};

/// A list box of all icons in a program, a library or an icon file, each with its number. A file
/// that has none, is damaged or is not there leaves it empty.
class QEL_API TQELIconListbox : public vcl::TCustomListBox {
 public:
  explicit TQELIconListbox(vcl::TComponent* owner);
  ~TQELIconListbox() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the list box says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  const std::string& Filename() const;
  /// The file whose icons are shown. Another one selects its first icon.
  void SetFilename(const std::string& fileName);
  int IconSize() const;
  /// The icons' width and height in pixels at 96 dots per inch; smaller where the largest possible
  /// line is no higher. So many icons are shown as have 64 million pixels together. Refuses,
  /// silently, what is not between 1 and 256.
  void SetIconSize(int size);
  int IconIndex() const;
  /// The icon that is selected, 0 for the first. One that the file has not is kept, with no line
  /// selected. Refuses, silently, a number below -1.
  void SetIconIndex(int index);
  /// The selected icon, in the size of the lines; empty for none. It stays the list box's.
  const vcl::TIcon& Icon();

 protected:
  void Click() override;
  void ChangeScale(int m, int d) override;
  void Loaded() override;

 private:
  std::unique_ptr<TQELAbout> FAbout;
  TQELIconLines* FIcons;  // The list's look.
};

}  // namespace qel
