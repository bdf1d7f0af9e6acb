// The parts that a filter's expression consists of.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "vcl/db/private/filterexpression.h"

namespace vcl::filter {

class TLiteral : public TNode {
 public:
  TLiteral(TKind kind, TFieldValue value) : TNode(kind), FValue(std::move(value)) {}
  const TFieldValue& Value() const { return FValue; }
  const std::string* Text() const { return std::get_if<std::string>(&FValue); }
  TResult Evaluate(const TRow& row) const override;

 private:
  TFieldValue FValue;
};

class TFieldNode : public TNode {
 public:
  TFieldNode(TKind kind, int fieldNo) : TNode(kind), FFieldNo(fieldNo) {}
  const TFieldValue& Value(const TRow& row) const {
    const auto place = static_cast<std::size_t>(FFieldNo);
    return place < row.Record.size() ? row.Record[place] : row.Behind(row.Record, FFieldNo);
  }
  TResult Evaluate(const TRow& row) const override;

 private:
  int FFieldNo;
};

/// Numbers and dates, added up or multiplied from left to right.
class TArithmetic : public TNode {
 public:
  struct TTerm {
    char Operator;
    TNodePtr Node;
  };
  TArithmetic(TKind kind, TNodePtr first, std::vector<TTerm> terms)
      : TNode(kind), FFirst(std::move(first)), FTerms(std::move(terms)) {}
  TResult Evaluate(const TRow& row) const override;

 private:
  TNodePtr FFirst;
  std::vector<TTerm> FTerms;
};

class TNegative : public TNode {
 public:
  TNegative(TKind kind, TNodePtr node) : TNode(kind), FNode(std::move(node)) {}
  TResult Evaluate(const TRow& row) const override;

 private:
  TNodePtr FNode;
};

class TCondition : public TNode {
 public:
  TCondition() : TNode(TKind::Condition) {}
  TResult Evaluate(const TRow& row) const override;
};

enum class TRelation { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual };

class TComparison : public TCondition {
 public:
  TComparison(TRelation relation, TNodePtr left, TNodePtr right, bool ignoreCase);
  TTruth Test(const TRow& row) const override;

 private:
  /// The same for an order: below zero, zero or above.
  template <class T>
  TTruth Truth(const T& a, const T& b) const {
    return TTruth((FFits >> (1 + (b < a) - (a < b))) & 1);
  }
  TTruth TestResults(const TRow& row) const;

  unsigned FFits;  ///< A bit for each order that fulfils it: below zero first.
  TNodePtr FLeft, FRight;
  bool FIgnoreCase;
  /// Where a field is compared with a value that is written out, as it mostly is: the field, and
  /// the value by its kind, a number also as a floating one.
  const TFieldNode* FField = nullptr;
  TFieldValue FWanted;
  double FNumber = 0;
};

/// LIKE, and texts that are compared in part.
class TLike : public TCondition {
 public:
  enum TWay { Pattern, Beginning };
  TLike(TWay way, TNodePtr text, TNodePtr pattern, bool ignoreCase)
      : FWay(way), FText(std::move(text)), FPattern(std::move(pattern)), FIgnoreCase(ignoreCase) {}
  TTruth Test(const TRow& row) const override;

 private:
  TWay FWay;
  TNodePtr FText, FPattern;
  bool FIgnoreCase;
};

class TIn : public TCondition {
 public:
  TIn(TNodePtr node, std::vector<TNodePtr> list, bool ignoreCase)
      : FNode(std::move(node)), FList(std::move(list)), FIgnoreCase(ignoreCase) {}
  TTruth Test(const TRow& row) const override;

 private:
  TNodePtr FNode;
  std::vector<TNodePtr> FList;
  bool FIgnoreCase;
};

class TIsNull : public TCondition {
 public:
  explicit TIsNull(TNodePtr node) : FNode(std::move(node)) {}
  TTruth Test(const TRow& row) const override;

 private:
  TNodePtr FNode;
};

class TNot : public TCondition {
 public:
  explicit TNot(TNodePtr node) : FNode(std::move(node)) {}
  TTruth Test(const TRow& row) const override;

 private:
  TNodePtr FNode;
};

/// Any number of conditions, joined by AND or by OR.
class TJoined : public TCondition {
 public:
  TJoined(bool byAnd, std::vector<TNodePtr> nodes) : FByAnd(byAnd), FNodes(std::move(nodes)) {}
  TTruth Test(const TRow& row) const override;

 private:
  bool FByAnd;
  std::vector<TNodePtr> FNodes;
};

}  // namespace vcl::filter
