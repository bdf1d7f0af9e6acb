// Compiling a filter: conditions joined by OR, AND and NOT, each of which compares sums of products
// of values.
#include "vcl/db/private/filterexpression.h"

#include "vcl/db/private/filterlexer.h"
#include "vcl/db/private/filternodes.h"
#include "vcl/db/private/isodates.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/text.h"

namespace vcl::filter {
namespace {

/// Compiling and evaluating call themselves for each level.
constexpr int DeepestNesting = 100;

constexpr std::string_view Reserved[] = {"AND", "OR", "NOT", "LIKE", "IS", "IN", "NULL"};

struct TRelationText {
  std::string_view Text;
  TRelation Relation;
};
constexpr TRelationText Relations[] = {
    {"=", TRelation::Equal},        {"<>", TRelation::NotEqual}, {"<", TRelation::Less},
    {"<=", TRelation::LessOrEqual}, {">", TRelation::Greater},   {">=", TRelation::GreaterOrEqual},
};

TKind KindOf(TFieldType dataType) {
  switch (dataType) {
    case ftString:
    case ftMemo:
    case ftBlob: return TKind::Text;
    case ftBoolean: return TKind::Condition;
    case ftDate:
    case ftTime:
    case ftDateTime: return TKind::Date;
    case ftUnknown:
    case ftSmallint:
    case ftInteger:
    case ftLargeint:
    case ftFloat:
    case ftCurrency:
    case ftBCD: break;
  }
  return TKind::Number;
}

const char* NameOf(TKind kind) {
  switch (kind) {
    case TKind::Number: return "a number";
    case TKind::Text: return "a text";
    case TKind::Date: return "a date or time";
    case TKind::Condition: break;
  }
  return "a condition";
}

class TCompiler {
 public:
  TCompiler(std::string_view text, const TFindField& findField, const TOptions& options)
      : FLexer(text), FFindField(findField), FOptions(options) {}

  TNodePtr Compile() {
    TOperand whole = Or();
    if (FLexer.Current().Kind != TToken::tkEnd) FLexer.Expected("AND, OR or the end");
    return Conditional(std::move(whole));
  }

 private:
  /// A part and where it begins.
  struct TOperand {
    TNodePtr Node;
    std::size_t Offset;
  };

  TNodePtr Conditional(TOperand operand) { return Need(TKind::Condition, std::move(operand)); }
  TNodePtr Need(TKind kind, TOperand operand);
  TNodePtr AsKind(TKind kind, TOperand& operand);
  TOperand Or() { return Joined(false); }
  TOperand Joined(bool byAnd);
  TOperand Not();
  TOperand Predicate();
  TOperand Compared(TRelation relation, TOperand left);
  TNodePtr ListOf(TOperand left);
  TOperand Sum() {
    return Terms("+", "-", [this] { return Product(); });
  }
  TOperand Product() {
    return Terms("*", "/", [this] { return Factor(); });
  }
  template <class Part>
  TOperand Terms(std::string_view one, std::string_view other, const Part& part);
  TKind TermKind(char operation, TKind left, TOperand& right);
  TOperand Factor();
  TOperand Negative();
  TOperand Parentheses();
  TNodePtr Value();
  TNodePtr Number();
  TNodePtr Field(const TToken& name);
  void Enter() const;

  TLexer FLexer;
  const TFindField& FFindField;
  TOptions FOptions;
  int FDepth = 0;
};

void TCompiler::Enter() const {
  if (FDepth >= DeepestNesting) {
    FLexer.Fail(FLexer.Current().Offset,
                Concat("it is nested more than ", IntToStr(DeepestNesting), " levels deep"));
  }
}

/// The operand as that kind; a text that is written out may say a number, a date, True or False.
/// Null where it is of another kind.
TNodePtr TCompiler::AsKind(TKind kind, TOperand& operand) {
  if (operand.Node->Kind() == kind) return std::move(operand.Node);
  const auto* literal = dynamic_cast<const TLiteral*>(operand.Node.get());
  const std::string* text = literal ? literal->Text() : nullptr;
  if (!text) return nullptr;
  double number = 0;
  std::int64_t whole = 0;
  if (kind == TKind::Number && TryStrToInt64(*text, whole)) {
    return std::make_unique<TLiteral>(kind, whole);
  }
  if (kind == TKind::Date ? TryReadIso(*text, number)
                          : kind == TKind::Number && TryStrToFloat(*text, number)) {
    return std::make_unique<TLiteral>(kind, number);
  }
  if (kind == TKind::Condition && (SameText(*text, "True") || SameText(*text, "False"))) {
    return std::make_unique<TLiteral>(kind, std::int64_t{SameText(*text, "True")});
  }
  return nullptr;
}

TNodePtr TCompiler::Need(TKind kind, TOperand operand) {
  TNodePtr node = AsKind(kind, operand);
  if (node) return node;
  const auto* literal = dynamic_cast<const TLiteral*>(operand.Node.get());
  const bool shown = literal && literal->Text();
  FLexer.Fail(operand.Offset, Concat(NameOf(kind), " was expected, not ",
                                     shown ? Concat("'", Shown(*literal->Text()), "'")
                                           : NameOf(operand.Node->Kind())));
}

TCompiler::TOperand TCompiler::Joined(bool byAnd) {
  const auto next = [&] { return byAnd ? Not() : Joined(true); };
  TOperand first = next();
  const char* word = byAnd ? "AND" : "OR";
  if (!FLexer.Current().IsWord(word)) return first;
  const std::size_t offset = first.Offset;
  std::vector<TNodePtr> nodes;
  nodes.push_back(Conditional(std::move(first)));
  while (FLexer.TakeWord(word)) nodes.push_back(Conditional(next()));
  return {std::make_unique<TJoined>(byAnd, std::move(nodes)), offset};
}

TCompiler::TOperand TCompiler::Not() {
  const std::size_t offset = FLexer.Current().Offset;
  bool negated = false, any = false;
  for (; FLexer.TakeWord("NOT"); any = true) negated = !negated;
  TOperand operand = Predicate();
  if (!any) return operand;
  TNodePtr node = Conditional(std::move(operand));
  if (negated) node = std::make_unique<TNot>(std::move(node));
  return {std::move(node), offset};
}

TCompiler::TOperand TCompiler::Predicate() {
  TOperand left = Sum();
  const std::size_t offset = left.Offset;
  for (const auto& [text, relation] : Relations) {
    if (FLexer.TakeSymbol(text)) return Compared(relation, std::move(left));
  }
  TNodePtr node;
  bool negated = false;
  if (FLexer.TakeWord("IS")) {
    negated = FLexer.TakeWord("NOT");
    if (!FLexer.TakeWord("NULL")) FLexer.Expected("NULL");
    node = std::make_unique<TIsNull>(std::move(left.Node));
  } else {
    negated = FLexer.TakeWord("NOT");
    if (FLexer.TakeWord("LIKE")) {
      TNodePtr text = Need(TKind::Text, std::move(left));
      node = std::make_unique<TLike>(TLike::Pattern, std::move(text), Need(TKind::Text, Sum()),
                                     FOptions.IgnoreCase);
    } else if (FLexer.TakeWord("IN")) {
      node = ListOf(std::move(left));
    } else if (negated) {
      FLexer.Expected("LIKE or IN");
    } else {
      return left;
    }
  }
  if (negated) node = std::make_unique<TNot>(std::move(node));
  return {std::move(node), offset};
}

TCompiler::TOperand TCompiler::Compared(TRelation relation, TOperand left) {
  const std::size_t offset = left.Offset;
  TOperand right = Sum();
  // Which of them is written out as a text follows the other.
  if (TNodePtr node = AsKind(right.Node->Kind(), left)) left.Node = std::move(node);
  TNodePtr wanted = Need(left.Node->Kind(), std::move(right));
  const auto* literal = dynamic_cast<const TLiteral*>(wanted.get());
  const std::string* text = literal ? literal->Text() : nullptr;
  const bool equality = relation == TRelation::Equal || relation == TRelation::NotEqual;
  if (!equality || !FOptions.PartialCompare || !text || !text->ends_with('*')) {
    return {std::make_unique<TComparison>(relation, std::move(left.Node), std::move(wanted),
                                          FOptions.IgnoreCase),
            offset};
  }
  auto beginning = std::make_unique<TLiteral>(TKind::Text, text->substr(0, text->size() - 1));
  TNodePtr node = std::make_unique<TLike>(TLike::Beginning, std::move(left.Node),
                                          std::move(beginning), FOptions.IgnoreCase);
  if (relation == TRelation::NotEqual) node = std::make_unique<TNot>(std::move(node));
  return {std::move(node), offset};
}

TNodePtr TCompiler::ListOf(TOperand left) {
  if (!FLexer.TakeSymbol("(")) FLexer.Expected("(");
  std::vector<TNodePtr> list;
  do {
    list.push_back(Need(left.Node->Kind(), Sum()));
  } while (FLexer.TakeSymbol(","));
  if (!FLexer.TakeSymbol(")")) FLexer.Expected("\",\" or \")\"");
  return std::make_unique<TIn>(std::move(left.Node), std::move(list), FOptions.IgnoreCase);
}

/// The kind of a sum so far and another term: days may be added to dates, and two dates have a
/// distance.
TKind TCompiler::TermKind(char operation, TKind left, TOperand& right) {
  if (left == TKind::Date && operation == '-') {
    if (TNodePtr date = AsKind(TKind::Date, right)) right.Node = std::move(date);
  }
  const bool dates = right.Node->Kind() == TKind::Date && (operation == '+' || operation == '-');
  if (left == TKind::Date && dates && operation == '-') return TKind::Number;
  if (left == TKind::Number && dates && operation == '+') return TKind::Date;
  right.Node = Need(TKind::Number, {std::move(right.Node), right.Offset});
  return left;
}

template <class Part>
TCompiler::TOperand TCompiler::Terms(std::string_view one, std::string_view other,
                                     const Part& part) {
  TOperand first = part();
  const auto operation = [&] {
    return FLexer.TakeSymbol(one) ? one[0] : FLexer.TakeSymbol(other) ? other[0] : '\0';
  };
  char current = operation();
  if (!current) return first;
  const std::size_t offset = first.Offset;
  const bool date = first.Node->Kind() == TKind::Date && (current == '+' || current == '-');
  TNodePtr start = date ? std::move(first.Node) : Need(TKind::Number, std::move(first));
  TKind kind = start->Kind();
  std::vector<TArithmetic::TTerm> terms;
  for (; current; current = operation()) {
    TOperand term = part();
    kind = TermKind(current, kind, term);
    terms.push_back({current, std::move(term.Node)});
  }
  return {std::make_unique<TArithmetic>(kind, std::move(start), std::move(terms)), offset};
}

TCompiler::TOperand TCompiler::Factor() {
  if (FLexer.Current().IsSymbol("-")) return Negative();
  if (FLexer.Current().IsSymbol("(")) return Parentheses();
  const std::size_t offset = FLexer.Current().Offset;
  return {Value(), offset};
}

TCompiler::TOperand TCompiler::Negative() {
  const std::size_t offset = FLexer.Current().Offset;
  bool negative = false;
  while (FLexer.TakeSymbol("-")) negative = !negative;
  TNodePtr node = Need(TKind::Number, Factor());
  if (negative) node = std::make_unique<TNegative>(TKind::Number, std::move(node));
  return {std::move(node), offset};
}

TCompiler::TOperand TCompiler::Parentheses() {
  Enter();
  const std::size_t offset = FLexer.Take().Offset;
  ++FDepth;
  TOperand inner = Or();
  --FDepth;
  if (!FLexer.TakeSymbol(")")) FLexer.Expected("\")\"");
  return {std::move(inner.Node), offset};
}

TNodePtr TCompiler::Value() {
  const TToken& current = FLexer.Current();
  switch (current.Kind) {
    case TToken::tkNumber: return Number();
    case TToken::tkText: return std::make_unique<TLiteral>(TKind::Text, FLexer.Take().Text);
    case TToken::tkField: return Field(FLexer.Take());
    case TToken::tkWord: break;
    case TToken::tkEnd:
    case TToken::tkSymbol: FLexer.Expected("a field or a value");
  }
  if (current.IsWord("NULL")) FLexer.Fail(current.Offset, "Null is asked for by IS NULL");
  for (const std::string_view word : Reserved) {
    if (current.IsWord(word)) FLexer.Expected("a field or a value");
  }
  const TToken word = FLexer.Take();
  if (word.IsWord("TRUE") || word.IsWord("FALSE")) {
    return std::make_unique<TLiteral>(TKind::Condition, std::int64_t{word.IsWord("TRUE")});
  }
  return Field(word);
}

TNodePtr TCompiler::Number() {
  const TToken token = FLexer.Take();
  std::int64_t whole = 0;
  if (TryStrToInt64(token.Text, whole)) return std::make_unique<TLiteral>(TKind::Number, whole);
  double number = 0;
  if (!TryStrToFloat(token.Text, number)) {
    FLexer.Fail(token.Offset, Concat("\"", Shown(token.Text), "\" is no number"));
  }
  return std::make_unique<TLiteral>(TKind::Number, number);
}

TNodePtr TCompiler::Field(const TToken& name) {
  const std::optional<TFieldPlace> place = FFindField(name.Text);
  if (!place) FLexer.Fail(name.Offset, Concat("there is no field '", Shown(name.Text), "'"));
  return std::make_unique<TFieldNode>(KindOf(place->DataType), place->FieldNo);
}

}  // namespace

TNodePtr Compile(std::string_view text, const TFindField& findField, const TOptions& options) {
  if (Trim(text).empty()) return nullptr;
  return TCompiler(text, findField, options).Compile();
}

}  // namespace vcl::filter
