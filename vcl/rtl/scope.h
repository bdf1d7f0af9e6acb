// What is to be done or put back at the end of a scope, however that is left.
#pragma once

#include <exception>
#include <utility>

#include "vcl/rtl/watch.h"

namespace vcl {

/// Runs a call at the end of the scope:
///
///     const TAtEnd enable([&] { others.Enable(); });
///
/// What the call raises leaves the scope like any error, unless one is on its way already: that one
/// is then what the caller hears of.
template <class Call>
class [[nodiscard]] TAtEnd {
 public:
  /// The call is left out when `holder`, which it needs, has been freed meanwhile.
  explicit TAtEnd(Call call, const TWatched* holder = nullptr)
      : FCall(std::move(call)), FHolder(holder) {}
  TAtEnd(const TAtEnd&) = delete;
  TAtEnd& operator=(const TAtEnd&) = delete;
  ~TAtEnd() noexcept(false) {
    if (FHolder.Gone()) return;
    const bool failed = std::uncaught_exceptions() > FErrorsBefore;
    try {
      FCall();
    } catch (...) {
      if (!failed) throw;
    }
  }

 private:
  Call FCall;
  TWatch FHolder;
  int FErrorsBefore = std::uncaught_exceptions();
};

/// Runs a call when an error leaves the scope: takes back what has been done by halves. What the
/// call raises itself is dropped, for the first error is what the caller hears of.
template <class Call>
class [[nodiscard]] TOnFailure {
 public:
  /// The call is left out when `holder`, which it needs, has been freed meanwhile.
  explicit TOnFailure(Call call, const TWatched* holder = nullptr)
      : FCall(std::move(call)), FHolder(holder) {}
  TOnFailure(const TOnFailure&) = delete;
  TOnFailure& operator=(const TOnFailure&) = delete;
  ~TOnFailure() {
    if (FHolder.Gone() || std::uncaught_exceptions() <= FErrorsBefore) return;
    try {
      FCall();
    } catch (...) {  // NOLINT(bugprone-empty-catch): see the class's comment.
    }
  }

 private:
  Call FCall;
  TWatch FHolder;
  int FErrorsBefore = std::uncaught_exceptions();
};

/// Gives a variable a value until the end of the scope, when it gets its old one back:
///
///     const TSetFor painting(FPainting, true, this);
template <class T>
class [[nodiscard]] TSetFor {
 public:
  /// The variable is left alone when `holder`, whose it is, has been freed meanwhile.
  template <class Value>
  TSetFor(T& variable, Value&& value, const TWatched* holder = nullptr)
      : FVariable(variable),
        FOld(std::exchange(variable, std::forward<Value>(value))),
        FHolder(holder) {}
  TSetFor(const TSetFor&) = delete;
  TSetFor& operator=(const TSetFor&) = delete;
  ~TSetFor() {
    if (!FHolder.Gone()) FVariable = std::move(FOld);
  }

 private:
  T& FVariable;
  T FOld;
  TWatch FHolder;
};

/// Holds back what lines or items tell of their changes: calls BeginUpdate, and EndUpdate at the
/// end of the scope.
template <class List>
class [[nodiscard]] TUpdating {
 public:
  /// EndUpdate is left out when `holder`, whose list it is, has been freed meanwhile.
  explicit TUpdating(List& list, const TWatched* holder = nullptr) : FEnd(Begin(list), holder) {}

 private:
  struct TEnd {
    List& Held;
    void operator()() const { Held.EndUpdate(); }
  };
  static TEnd Begin(List& list) {
    list.BeginUpdate();
    return {list};
  }

  TAtEnd<TEnd> FEnd;
};

}  // namespace vcl
