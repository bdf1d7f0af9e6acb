// TQELJokeHolder: short texts of which one is shown now and then.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "qel/core/Qelcomponent.h"
#include "qel/core/Qeltstoredata.h"

namespace qel {

/// Holds short texts and gives them in an order by chance, none of them twice before all have been
/// given. With JokeStore enabled that goes on over the program's starts; what has been given is
/// kept there as "Form1.JokeHolder1_Given", of the owner's and the component's own name. Other
/// texts in Items begin a new round.
///
/// The designer neither reads nor writes the store. What the store refuses tells its OnError.
class QEL_API TQELJokeHolder : public TQELExecComponent {
 public:
  explicit TQELJokeHolder(vcl::TComponent* owner);
  ~TQELJokeHolder() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// One of the texts; empty when there are none.
  std::string Next();
  /// Shows one of the texts in a message box; false without any, as LastError then says.
  bool Execute() override;
  /// Why the last Execute has shown nothing; empty when it has.
  const std::string& LastError() const { return FLastError; }

  vcl::TStrings* Items() const { return FItems.get(); }
  /// The texts, with a line "%" between two of them. What has only blanks is none.
  void SetItems(const vcl::TStrings* items) { FItems->Assign(items); }
  const std::string& Title() const { return FTitle; }
  /// The caption of the message box; that of the program when it is empty.
  void SetTitle(const std::string& title) { FTitle = title; }
  /// Where it is kept what has been given; not enabled at first.
  TQELDataStore* JokeStore() const { return FJokeStore.get(); }

 private:
  /// An order of the texts and how many have been given in it.
  struct TRound {
    std::uint32_t Seed = 0;   // What the order comes of.
    std::uint32_t Texts = 0;  // Of which texts.
    std::uint32_t Given = 0;
  };
  static TRound RoundOf(const std::string& kept);
  void GoOn(const std::vector<std::string>& texts);

  std::unique_ptr<vcl::TStringList> FItems;
  std::string FTitle;
  std::unique_ptr<TQELDataStore> FJokeStore;
  TRound FRound;
  std::string FLastError;
};

}  // namespace qel
