// TQELAutoCombo: a combo box that completes what is typed and remembers it.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qeltstoredata.h"
#include "vcl/stdctrls/combobox.h"

namespace qel {

enum TQELAutoRemember {
  roEnter,  ///< When Enter is pressed.
  roExit    ///< When the focus leaves.
};
using TQELAutoRememberOn = vcl::TSet<TQELAutoRemember>;

/// Sender, the text, and whether it is to be remembered, which the handler may refuse.
using TQELRememberEvent = vcl::TEvent<vcl::TObject*, const std::string&, bool&>;

/// A combo box that completes what is typed from its items, and puts what was typed before the
/// others. With HistoryStore enabled it keeps its items between runs, in the values
/// "Form1.Combo1_Item0" and so on of its owner's and its own name.
///
/// The store is read when the form has been read, and never in the designer. What it refuses tells
/// its OnError; what could not be read is not overwritten.
class QEL_API TQELAutoCombo : public vcl::TCustomComboBox {
 public:
  explicit TQELAutoCombo(vcl::TComponent* owner);
  ~TQELAutoCombo() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the combo box says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  bool AutoComplete() const { return FAutoComplete; }
  /// True puts the rest of the first item that begins with what is typed behind it, selected.
  void SetAutoComplete(bool complete) { FAutoComplete = complete; }
  bool CaseSensitive() const { return FCaseSensitive; }
  /// True tells capital letters from small ones.
  void SetCaseSensitive(bool caseSensitive) { FCaseSensitive = caseSensitive; }
  int MaxItems() const { return FMaxItems; }
  /// How many items are kept when one comes; those that were used longest ago go. Refuses,
  /// silently, less than 1.
  void SetMaxItems(int count);
  TQELAutoRememberOn RememberOn() const { return FRememberOn; }
  /// What has the text remembered.
  void SetRememberOn(TQELAutoRememberOn when) { FRememberOn = when; }
  /// Where the items are kept between runs; not enabled at first.
  TQELDataStore* HistoryStore() const { return FHistoryStore.get(); }

  /// Puts the text before the other items, and writes them to the store. One that is there already
  /// moves. Nothing is done for an empty text, and when OnRemember refuses.
  void Remember(const std::string& text);
  /// Reads the items from the store, before those that are there. Raises EIniFileException or
  /// ERegistryException for one that can't be read. False when it is not enabled.
  bool LoadHistory();
  /// Empties the list and what the store has of it.
  void ClearHistory();

  /// The text is about to be remembered.
  TQELRememberEvent OnRemember;

 protected:
  void Change() override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void KeyPress(char32_t& key) override;
  void DoExit() override;
  void Loaded() override;

 private:
  std::string ValueName(int index) const;
  int IndexOf(const std::string& text) const;
  bool Same(const std::string& a, const std::string& b) const;
  void Complete();
  void MoveToTop(const std::string& text);
  void SaveHistory();
  template <class Call>
  bool Guarded(Call call);

  std::unique_ptr<TQELAbout> FAbout;
  std::unique_ptr<TQELDataStore> FHistoryStore;
  bool FAutoComplete = true;
  bool FCaseSensitive = false;
  int FMaxItems = 20;
  TQELAutoRememberOn FRememberOn{roEnter, roExit};
  bool FTyped = false;   // The change to come is a character's.
  bool FUnread = false;  // What is stored was not to be read.
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELAutoRemember>{"TQELAutoRemember", "roEnter roExit",
                                                           "TQELAutoRememberOn"};
template <>
inline constexpr TEventText EventText<qel::TQELRememberEvent>{
    "TQELRememberEvent", "vcl::TObject* sender, const std::string& text, bool& remember"};

}  // namespace vcl
