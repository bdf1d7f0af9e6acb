// TActionLink, which joins a client (a control, a menu item) to an action, and what it passes on.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "vcl/menus/menus.h"
#include "vcl/rtl/watch.h"

namespace vcl {

class TBasicAction;
class TImageList;

/// What an action says of the clients that show it.
struct TActionValues {
  std::string Caption;
  std::string Hint;
  bool Checked = false;
  bool Enabled = true;
  bool Visible = true;
  int GroupIndex = 0;
  TShortCut ShortCut = scNone;
  /// Which of the list's Images; -1 for none.
  int ImageIndex = -1;
  TImageList* Images = nullptr;
};

/// A change of an action's values, on its way to one client: the client takes those values of which
/// it shows what the action said before. One that differs is the client's own and stays.
class VCL_API TActionChange {
 public:
  /// `before` is null for a client that takes all.
  TActionChange(const TComponent& client, const TActionValues* before, TActionValues now)
      : FClient(&client), FBefore(before), FNow(std::move(now)) {}

  const TActionValues& Now() const { return FNow; }
  /// True when the client has just got the action.
  bool All() const { return !FBefore; }
  /// True when the action says something else of the value than before.
  template <class T>
  bool Changes(T TActionValues::*value) const {
    return All() || FBefore->*value != FNow.*value;
  }
  /// True when the client, which shows `shown`, is to take the value.
  template <class T, class Shown>
  bool Concerns(T TActionValues::*value, const Shown& shown) const {
    return All() || shown == FBefore->*value;
  }
  /// Gives the client one of the values, by its getter and setter; nothing to one that was freed.
  template <class Client, class T, class Get, class Set>
  void Pass(Client& client, T TActionValues::*value, Get get, Set set) const {
    if (!FClient.Gone() && Concerns(value, (client.*get)())) (client.*set)(FNow.*value);
  }

 private:
  TWatch FClient;
  const TActionValues* FBefore;
  TActionValues FNow;
};

/// Belongs to the client and ends with it. When the action ends first, the link has none and the
/// client keeps what it shows.
class VCL_API TActionLink {
 public:
  using TFollow = std::function<void(const TActionChange& change)>;
  /// `follow` gives the client the values of its action.
  TActionLink(TComponent& client, TFollow follow);
  ~TActionLink();
  TActionLink(const TActionLink&) = delete;
  TActionLink& operator=(const TActionLink&) = delete;

  TComponent& Client() const { return FClient; }
  TBasicAction* Action() const { return FAction; }
  /// The client takes the action's values: all of them, or, while it is read from a form file,
  /// those that the file leaves at their defaults.
  void SetAction(TBasicAction* action);
  /// The action's values; null without an action, and for one that has none.
  const TActionValues* Values() const;

 private:
  friend class TBasicAction;
  void Follow(const TActionValues* before);

  TComponent& FClient;
  TFollow FFollow;
  TBasicAction* FAction = nullptr;
};

}  // namespace vcl
