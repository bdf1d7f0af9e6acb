// TLineCounter: a thread that reads the file once from its beginning to its end.
#include "qel/shell/private/linecounter.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "qel/shell/private/textdocument.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/thread.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

constexpr std::uint64_t Each = 4096;  // Lines from one that is kept to the next one.
constexpr std::size_t Portion = 1 << 20;

}  // namespace

class TLineCounter::TCounting : public vcl::TThread {
 public:
  TCounting(std::string fileName, std::uint64_t begin, std::size_t unit, bool bigFirst,
            const std::function<void()>& counted)
      : FFileName(std::move(fileName)),
        FUnit(unit),
        FBigFirst(bigFirst),
        FCounted(counted),
        FPlace(begin),
        FToldPlace(begin),
        FKnown{{0, begin}},
        FGoOn(::CreateEventW(nullptr, FALSE, TRUE, nullptr)) {
    Start();
  }
  ~TCounting() override {
    Terminate();
    ::SetEvent(FGoOn);
    EndThread();
    ::CloseHandle(FGoOn);
  }
  void Continue() { ::SetEvent(FGoOn); }
  std::uint64_t Place() const { return FToldPlace; }
  std::uint64_t Lines() const { return FToldLines; }
  template <class Fits>
  TKnown Last(Fits fits) const {
    const auto behind = std::partition_point(FKnown.begin(), FKnown.end(), fits);
    return *(behind == FKnown.begin() ? behind : behind - 1);
  }

 protected:
  void Execute() override {
    while (!Terminated() && ::WaitForSingleObject(FGoOn, INFINITE) == WAIT_OBJECT_0) {
      try {
        TFileBytes bytes;
        bytes.Open(FFileName);
        while (!Terminated() && Count(bytes.Read(FPlace, Portion))) {
          Tell();
        }
      } catch (const vcl::EInOutError&) {
        continue;  // It has gone: there is nothing to count.
      }
      Tell();
    }
  }

 private:
  /// False at the end.
  bool Count(const std::string& bytes) {
    const std::uint64_t begin = FPlace;
    for (std::size_t i = bytes.find('\n'); i != std::string::npos; i = bytes.find('\n', i + 1)) {
      if (!Ends(bytes, i)) continue;
      const std::uint64_t behind = begin + i + (FUnit == 2 && !FBigFirst ? 2 : 1);
      if (++FLines % Each == 0) FNew.push_back({FLines, behind});
    }
    FPlace += FUnit == 2 ? bytes.size() & ~std::size_t{1} : bytes.size();
    return bytes.size() == Portion;
  }
  bool Ends(const std::string& bytes, std::size_t at) const {
    if (FUnit == 1) return true;
    const bool first = at % 2 == 0;  // Portions begin with a unit.
    if (FBigFirst) return !first && bytes[at - 1] == '\0';
    return first && at + 1 < bytes.size() && bytes[at + 1] == '\0';
  }
  /// Gives what has been counted to the main thread, whose it is from then on.
  void Tell() {
    Queue([this, place = FPlace, lines = FLines, known = std::exchange(FNew, {})] {
      FToldPlace = place;
      FToldLines = lines;
      FKnown.insert(FKnown.end(), known.begin(), known.end());
      FCounted();
    });
  }

  const std::string FFileName;
  const std::size_t FUnit;
  const bool FBigFirst;
  const std::function<void()>& FCounted;
  // The thread's.
  std::uint64_t FPlace;
  std::uint64_t FLines = 0;
  std::vector<TKnown> FNew;
  // The main thread's.
  std::uint64_t FToldPlace;
  std::uint64_t FToldLines = 0;
  std::vector<TKnown> FKnown;
  HANDLE FGoOn;
};

TLineCounter::TLineCounter(std::function<void()> counted) : FCounted(std::move(counted)) {}
TLineCounter::~TLineCounter() = default;

void TLineCounter::Start(const std::string& fileName, std::uint64_t begin, std::size_t unit,
                         bool bigFirst) {
  FCounting.reset();
  if (!fileName.empty()) {
    FCounting = std::make_unique<TCounting>(fileName, begin, unit, bigFirst, FCounted);
  }
}

void TLineCounter::Continue() {
  if (FCounting) FCounting->Continue();
}

std::uint64_t TLineCounter::CountedTo() const { return FCounting ? FCounting->Place() : 0; }
std::uint64_t TLineCounter::Lines() const { return FCounting ? FCounting->Lines() : 0; }

TLineCounter::TKnown TLineCounter::Before(std::uint64_t place) const {
  return FCounting->Last([place](const TKnown& each) { return each.Begin <= place; });
}

TLineCounter::TKnown TLineCounter::BeforeNumber(std::uint64_t number) const {
  return FCounting->Last([number](const TKnown& each) { return each.Number <= number; });
}

}  // namespace qel
