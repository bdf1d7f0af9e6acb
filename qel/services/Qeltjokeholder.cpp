// TQELJokeHolder: its texts and their order.
#include "qel/services/Qeltjokeholder.h"

#include <numeric>
#include <random>
#include <sstream>
#include <utility>

#include "qel/core/private/keptvalues.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

constexpr const char* StoreSection = "Jokes";
constexpr const char* GivenValue = "Given";

/// The texts between the lines "%".
std::vector<std::string> TextsOf(const vcl::TStrings& lines) {
  std::vector<std::string> texts(1);
  for (int i = 0; i < lines.Count(); ++i) {
    const std::string line = lines.Strings(i);
    if (vcl::Trim(line) == "%") {
      texts.emplace_back();
    } else {
      texts.back() += (texts.back().empty() ? "" : "\r\n") + line;
    }
  }
  std::erase_if(texts, [](const std::string& text) { return vcl::Trim(text).empty(); });
  return texts;
}

/// A number that other texts hardly have, the same in each run.
std::uint32_t Checksum(const std::vector<std::string>& texts) {
  std::uint32_t sum = 2166136261u;
  const auto add = [&sum](unsigned char byte) { sum = (sum ^ byte) * 16777619u; };
  for (const std::string& text : texts) {
    for (const char each : text) add(static_cast<unsigned char>(each));
    add(0);
  }
  return sum;
}

/// The numbers below `count` in an order that the seed alone decides.
std::vector<int> OrderOf(std::uint32_t seed, std::size_t count) {
  std::vector<int> order(count);
  std::iota(order.begin(), order.end(), 0);
  // The order of the standard's own shuffle is not the same for each library.
  std::mt19937 random(seed);
  for (std::size_t i = count; i > 1; --i) std::swap(order[i - 1], order[random() % i]);
  return order;
}

/// An order that does not begin with the last one's end.
std::uint32_t NewSeed(std::size_t count, int last) {
  std::random_device random;
  std::uint32_t seed = random();
  while (count > 1 && OrderOf(seed, count).front() == last) seed = random();
  return seed;
}

}  // namespace

const vcl::TClass& TQELJokeHolder::Class() {
  using T = TQELJokeHolder;
  using namespace vcl;
  static const TClass info =
      Describe<T, TQELExecComponent>("qel::TQELJokeHolder", "qel/services/Qeltjokeholder.h",
                                     {
                                         Property<&T::Items, &T::SetItems>("Items"),
                                         ReadOnly<&T::JokeStore>("JokeStore"),
                                         Property<&T::Title, &T::SetTitle>("Title").Default(""),
                                     });
  return info;
}

TQELJokeHolder::TQELJokeHolder(vcl::TComponent* owner)
    : TQELExecComponent(owner),
      FItems(std::make_unique<vcl::TStringList>()),
      FJokeStore(std::make_unique<TQELDataStore>()) {
  FJokeStore->Registry()->SetSection(StoreSection);
  FJokeStore->Inifile()->SetSection(StoreSection);
  FJokeStore->SetInitialEnabled(false);
}

TQELJokeHolder::~TQELJokeHolder() { AnnounceEnd(); }

/// What can't be read is a round of no texts.
TQELJokeHolder::TRound TQELJokeHolder::RoundOf(const std::string& kept) {
  TRound round;
  std::istringstream numbers(kept);
  numbers >> round.Seed >> round.Texts >> round.Given;
  return numbers.fail() ? TRound() : round;
}

/// Replaces a round that is over, or is one of other texts.
void TQELJokeHolder::GoOn(const std::vector<std::string>& texts) {
  const std::size_t count = texts.size();
  const std::uint32_t sum = Checksum(texts);
  const bool same = FRound.Texts == sum && FRound.Given <= count;
  if (same && FRound.Given < count) return;
  const int last = same ? OrderOf(FRound.Seed, count).back() : -1;
  FRound = {NewSeed(count, last), sum, 0};
}

std::string TQELJokeHolder::Next() {
  const vcl::TWatch watch(this);
  const std::vector<std::string> texts = TextsOf(*FItems);
  if (texts.empty()) return {};
  const TKeptValues values(*FJokeStore, *this);
  const std::string kept = values.Read(GivenValue);
  if (watch.Gone()) return {};
  if (!kept.empty()) FRound = RoundOf(kept);
  GoOn(texts);
  const int chosen = OrderOf(FRound.Seed, texts.size())[FRound.Given++];
  values.Write(GivenValue,
               vcl::Concat(std::to_string(FRound.Seed), " ", std::to_string(FRound.Texts), " ",
                           std::to_string(FRound.Given)));
  return texts[static_cast<std::size_t>(chosen)];
}

bool TQELJokeHolder::Execute() {
  const vcl::TWatch watch(this);
  const std::string text = Next();
  if (watch.Gone()) return false;
  FLastError = text.empty() ? "There are no texts" : "";
  if (text.empty()) return false;
  vcl::TCustomApplication& application = vcl::BaseApplication();
  application.MessageBox(text, FTitle.empty() ? application.Title() : FTitle,
                         MB_OK | MB_ICONINFORMATION);
  return true;
}

}  // namespace qel
