// Figures of the wire to the bench rig, through the library that the station loads:
//
//   rig_bench exchange      what one exchange costs
//   rig_bench drive SECONDS exchanges as a station makes them while a program drives, for so long
//
// Needs a rig that is served; run it through benchmarks/rig, which brings one along.

#include <dlfcn.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Read = std::int32_t (*)(std::int32_t);
using Write = std::int32_t (*)(std::int32_t, std::int32_t);

constexpr int iExchanges = 20'000;
constexpr std::int32_t lAddress = 0x378;
constexpr std::chrono::milliseconds tick{5};
constexpr int iTicksForAByte = 5;  ///< a program writes once in a line's 25 ms at most

struct Library {
  void* pFile = dlopen(TRACKPORT32_BENCH, RTLD_NOW);
  Read pIsAdapterConnected = reinterpret_cast<Read>(dlsym(pFile, "IsAdapterConnected"));
  Read pReadAdapter = reinterpret_cast<Read>(dlsym(pFile, "ReadAdapter"));
  Write pWriteAdapter = reinterpret_cast<Write>(dlsym(pFile, "WriteAdapter"));
};

int MeasureExchange(const Library& library) {
  std::vector<double> aTimes;
  for (int i = 0; i < iExchanges; ++i) {
    const auto start = Clock::now();
    if (library.pReadAdapter(lAddress) == 0) return 1;
    aTimes.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
  }
  std::sort(aTimes.begin(), aTimes.end());
  std::printf("exchange: median %.4f ms (limit: 0.1), 99th percentile %.4f ms, longest %.3f ms\n",
              aTimes[iExchanges / 2], aTimes[iExchanges * 99 / 100], aTimes.back());
  return 0;
}

int Drive(const Library& library, int iSeconds) {
  const auto end = Clock::now() + std::chrono::seconds(iSeconds);
  auto next = Clock::now();
  Clock::duration longest{};
  int iLost = 0;
  for (int i = 0; next < end; ++i, next += tick) {
    std::this_thread::sleep_until(next);
    const auto start = Clock::now();
    const bool bAnswered = library.pReadAdapter(lAddress) != 0;
    longest = std::max(longest, Clock::now() - start);
    if (!bAnswered) ++iLost;
    if (!bAnswered) library.pIsAdapterConnected(lAddress);
    if (i % iTicksForAByte == 0) library.pWriteAdapter(lAddress, i % 32);
  }
  std::printf("drive: longest exchange %.2f ms (limit: 50), link lost %d times\n",
              std::chrono::duration<double, std::milli>(longest).count(), iLost);
  return 0;
}

}  // namespace

int main(int iCount, char** aArguments) {
  const Library library;
  if (library.pIsAdapterConnected(lAddress) == 0) {
    std::fprintf(stderr, "rig_bench: no rig is served\n");
    return 1;
  }
  const std::string sWhat = iCount > 1 ? aArguments[1] : "";
  if (sWhat == "exchange") return MeasureExchange(library);
  return sWhat == "drive" && iCount > 2 ? Drive(library, std::atoi(aArguments[2])) : 2;
}
