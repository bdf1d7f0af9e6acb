// Evaluating a filter for a record. What Null is put into results in Null, which fulfils nothing.
#include "vcl/db/private/filternodes.h"

#include <optional>

#include "vcl/db/private/textmatch.h"
#include "vcl/rtl/text.h"

namespace vcl::filter {
namespace {

bool IsNull(const TResult& value) { return value.index() == 0; }

double ToDouble(const TResult& value) {
  const auto* whole = std::get_if<std::int64_t>(&value);
  return whole ? static_cast<double>(*whole) : std::get<double>(value);
}

TResult ResultOf(const TFieldValue& value) {
  switch (value.index()) {
    case 1: return std::get<std::int64_t>(value);
    case 2: return std::get<double>(value);
    case 3: return std::string_view(std::get<std::string>(value));
    default: return {};
  }
}

TTruth TruthOf(bool holds) { return holds ? TTruth::True : TTruth::False; }

template <class T>
int Sign(const T& a, const T& b) {
  return a < b ? -1 : b < a ? 1 : 0;
}

/// Negative, zero or positive; nothing where one of them is Null, or of another sort than its field
/// says, as what a database has for a date may be.
std::optional<int> Compare(const TResult& a, const TResult& b, bool ignoreCase) {
  if (IsNull(a) || IsNull(b)) return {};
  const auto* text = std::get_if<std::string_view>(&a);
  const auto* otherText = std::get_if<std::string_view>(&b);
  if (!text != !otherText) return {};
  if (text) return ignoreCase ? AnsiCompareText(*text, *otherText) : text->compare(*otherText);
  const auto* whole = std::get_if<std::int64_t>(&a);
  const auto* otherWhole = std::get_if<std::int64_t>(&b);
  return whole && otherWhole ? Sign(*whole, *otherWhole) : Sign(ToDouble(a), ToDouble(b));
}

/// The orders that fulfil a relation: 1 for below zero, 2 for zero, 4 for above.
unsigned FittingOrders(TRelation relation) {
  switch (relation) {
    case TRelation::Equal: return 2;
    case TRelation::NotEqual: return 1 | 4;
    case TRelation::Less: return 1;
    case TRelation::LessOrEqual: return 1 | 2;
    case TRelation::Greater: return 4;
    case TRelation::GreaterOrEqual: break;
  }
  return 2 | 4;
}

/// Whole numbers as long as their result is one that fits.
std::optional<std::int64_t> CalculateWhole(char operation, std::int64_t a, std::int64_t b) {
  std::int64_t result = 0;
  const bool overflow = operation == '+'   ? __builtin_add_overflow(a, b, &result)
                        : operation == '-' ? __builtin_sub_overflow(a, b, &result)
                        : operation == '*' ? __builtin_mul_overflow(a, b, &result)
                                           : true;
  return overflow ? std::nullopt : std::optional(result);
}

TResult Calculate(char operation, const TResult& a, const TResult& b) {
  const auto isText = [](const TResult& value) { return value.index() == 3; };
  if (IsNull(a) || IsNull(b) || isText(a) || isText(b)) return {};
  const auto* whole = std::get_if<std::int64_t>(&a);
  const auto* otherWhole = std::get_if<std::int64_t>(&b);
  if (whole && otherWhole) {
    if (const auto result = CalculateWhole(operation, *whole, *otherWhole)) return *result;
  }
  const double x = ToDouble(a), y = ToDouble(b);
  switch (operation) {
    case '+': return x + y;
    case '-': return x - y;
    case '*': return x * y;
    default: break;
  }
  return y == 0 ? TResult() : x / y;
}

}  // namespace

TResult TLiteral::Evaluate(const TRow&) const { return ResultOf(FValue); }

TResult TFieldNode::Evaluate(const TRow& row) const { return ResultOf(Value(row)); }

TTruth TNode::Test(const TRow& row) const {
  const TResult value = Evaluate(row);
  return IsNull(value) ? TTruth::Unknown : TruthOf(value == TResult(std::int64_t{1}));
}

TResult TCondition::Evaluate(const TRow& row) const {
  const TTruth truth = Test(row);
  return truth == TTruth::Unknown ? TResult() : std::int64_t{truth == TTruth::True};
}

TResult TArithmetic::Evaluate(const TRow& row) const {
  TResult result = FFirst->Evaluate(row);
  for (const auto& [operation, node] : FTerms) {
    result = Calculate(operation, result, node->Evaluate(row));
  }
  return result;
}

TResult TNegative::Evaluate(const TRow& row) const {
  return Calculate('-', std::int64_t{0}, FNode->Evaluate(row));
}

TComparison::TComparison(TRelation relation, TNodePtr left, TNodePtr right, bool ignoreCase)
    : FFits(FittingOrders(relation)),
      FLeft(std::move(left)),
      FRight(std::move(right)),
      FIgnoreCase(ignoreCase) {
  const auto* literal = dynamic_cast<const TLiteral*>(FRight.get());
  if (!literal) return;
  FField = dynamic_cast<const TFieldNode*>(FLeft.get());
  FWanted = literal->Value();
  if (FWanted.index() == 1 || FWanted.index() == 2) FNumber = ToDouble(ResultOf(FWanted));
}

/// Of a field and a value written out, without a detour: this is done for each record.
TTruth TComparison::Test(const TRow& row) const {
  if (!FField) return TestResults(row);
  const TFieldValue& value = FField->Value(row);
  const std::size_t wanted = FWanted.index();
  if (const auto* whole = std::get_if<std::int64_t>(&value)) {
    if (wanted == 1) return Truth(*whole, *std::get_if<std::int64_t>(&FWanted));
    if (wanted == 2) return Truth(static_cast<double>(*whole), FNumber);
  } else if (const auto* number = std::get_if<double>(&value)) {
    if (wanted == 1 || wanted == 2) return Truth(*number, FNumber);
  } else if (const auto* text = std::get_if<std::string>(&value)) {
    // Texts of different lengths are told apart at once.
    const bool equality = FFits == 2 || FFits == (1 | 4);
    if (wanted == 3 && equality && !FIgnoreCase) {
      return TruthOf((*text == *std::get_if<std::string>(&FWanted)) == (FFits == 2));
    }
  }
  return TestResults(row);
}

TTruth TComparison::TestResults(const TRow& row) const {
  const std::optional<int> order =
      Compare(FLeft->Evaluate(row), FRight->Evaluate(row), FIgnoreCase);
  return order ? Truth(*order, 0) : TTruth::Unknown;
}

TTruth TLike::Test(const TRow& row) const {
  const TResult value = FText->Evaluate(row), wanted = FPattern->Evaluate(row);
  const auto* text = std::get_if<std::string_view>(&value);
  const auto* pattern = std::get_if<std::string_view>(&wanted);
  if (!text || !pattern) return TTruth::Unknown;
  return TruthOf(FWay == Pattern ? MatchesPattern(*text, *pattern, FIgnoreCase)
                                 : BeginsWith(*text, *pattern, FIgnoreCase));
}

TTruth TIn::Test(const TRow& row) const {
  const TResult value = FNode->Evaluate(row);
  TTruth truth = TTruth::False;
  for (const TNodePtr& each : FList) {
    const std::optional<int> order = Compare(value, each->Evaluate(row), FIgnoreCase);
    if (order == 0) return TTruth::True;
    if (!order) truth = TTruth::Unknown;
  }
  return truth;
}

TTruth TIsNull::Test(const TRow& row) const { return TruthOf(IsNull(FNode->Evaluate(row))); }

TTruth TNot::Test(const TRow& row) const {
  const TTruth truth = FNode->Test(row);
  return truth == TTruth::Unknown ? truth : TruthOf(truth == TTruth::False);
}

TTruth TJoined::Test(const TRow& row) const {
  // One that does not hold decides for AND, one that does for OR.
  const TTruth decides = TruthOf(!FByAnd);
  TTruth truth = TruthOf(FByAnd);
  for (const TNodePtr& each : FNodes) {
    const TTruth one = each->Test(row);
    if (one == decides) return decides;
    if (one == TTruth::Unknown) truth = one;
  }
  return truth;
}

}  // namespace vcl::filter
