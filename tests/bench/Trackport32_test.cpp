// The two libraries trackport32 as the station meets them: loaded at run time, operations looked up
// by name.

#include <cstdint>
#include <optional>

#include "BenchPlace.h"
#include "bench/RigClient.h"
#include "bench/trackport32.h"

namespace glidetrak::bench {
namespace {

constexpr const char* aOperations[] = {"LPTAvailable", "LPTAddress", "IsAdapterConnected",
                                       "OpenLPT",      "CloseLPT",   "ReadAdapter",
                                       "WriteAdapter", "SetStrobe",  "ReadAtoD"};
constexpr int lAddress = 0x378;

class Library {
 public:
  explicit Library(const char* sPath) : m_library(sPath) {}

  void* Find(const char* sOperation) const { return m_library.Find(sOperation); }

  template <typename... Numbers>
  std::int32_t Call(const char* sOperation, Numbers... numbers) const {
    using Operation = std::int32_t(TRACKPORT_CALL*)(Numbers...);
    return reinterpret_cast<Operation>(Find(sOperation))(numbers...);
  }

 private:
  const LoadedLibrary m_library;
};

class BenchLibrary : public BenchPlace {
 protected:
  std::string State() const { return AskRig(Place(), "state"); }

  bool Shows(const std::string& sLine) const {
    return State().find(sLine + "\n") != std::string::npos;
  }

  std::optional<ServedRig> m_rig{std::in_place, Place()};
  const Library m_library{TRACKPORT32_BENCH};
};

TEST_F(BenchLibrary, HasTheNineOperations) {
  for (const char* sOperation : aOperations) {
    EXPECT_NE(m_library.Find(sOperation), nullptr) << sOperation;
  }
}

TEST_F(BenchLibrary, HasOnePortWithAnAdapter) {
  EXPECT_EQ(m_library.Call("LPTAvailable"), 1);
  EXPECT_EQ(m_library.Call("LPTAddress", 1), lAddress);
  EXPECT_EQ(m_library.Call("LPTAddress", 2), 0);
  EXPECT_EQ(m_library.Call("IsAdapterConnected", lAddress), 1);
  EXPECT_EQ(m_library.Call("IsAdapterConnected", 0), 0);
  EXPECT_NE(m_library.Call("OpenLPT", 1), 0);
  EXPECT_EQ(m_library.Call("OpenLPT", 3), 0);
}

TEST_F(BenchLibrary, ARigThatIsNotServedIsNoAdapter) {
  m_rig.reset();
  EXPECT_EQ(m_library.Call("LPTAvailable"), 1);
  EXPECT_EQ(m_library.Call("LPTAddress", 1), lAddress);
  EXPECT_EQ(m_library.Call("IsAdapterConnected", lAddress), 0);
  EXPECT_EQ(m_library.Call("ReadAdapter", lAddress), 0);
  EXPECT_EQ(m_library.Call("WriteAdapter", lAddress, 0x1F), 0);
  EXPECT_EQ(m_library.Call("ReadAtoD", lAddress, 50000), 0);
}

TEST_F(BenchLibrary, ARigThatIsServedAgainIsFoundByTheNextLookForTheAdapter) {
  ASSERT_EQ(m_library.Call("ReadAdapter", lAddress), 0x88);
  m_rig.reset();
  EXPECT_EQ(m_library.Call("ReadAdapter", lAddress), 0);
  m_rig.emplace(Place());
  EXPECT_EQ(m_library.Call("ReadAdapter", lAddress), 0);
  EXPECT_EQ(m_library.Call("IsAdapterConnected", lAddress), 1);
  EXPECT_EQ(m_library.Call("ReadAdapter", lAddress), 0x88);
}

TEST_F(BenchLibrary, TheRigKeepsItsByteWhenTheLibraryGoes) {
  {
    const Library other(TRACKPORT32_BENCH);
    other.Call("WriteAdapter", lAddress, 0x1F);
  }
  EXPECT_TRUE(Shows("power 15"));
}

TEST_F(BenchLibrary, InputByteIsThatOfTheModel) {
  EXPECT_EQ(m_library.Call("ReadAdapter", lAddress), 0x88);
  EXPECT_EQ(m_library.Call("ReadAdapter", 0), 0);
  AskRig(Place(), "press CITY_CALL 60000");
  EXPECT_EQ(m_library.Call("ReadAdapter", lAddress), 0x8A);
}

TEST_F(BenchLibrary, WrittenByteDrivesTheVehicleThroughBothGates) {
  m_library.Call("WriteAdapter", lAddress, 0x1F);
  EXPECT_TRUE(Shows("power 15"));
  EXPECT_TRUE(Shows("direction forward"));
  const auto Gate = [&](int iMask) {
    return (m_library.Call("ReadAdapter", lAddress) & iMask) != 0;
  };
  EXPECT_TRUE(WaitFor([&] { return Gate(0x10); }));
  EXPECT_TRUE(WaitFor([&] { return Gate(0x20); }));
}

TEST_F(BenchLibrary, WriteToAnotherAddressDoesNothing) {
  m_library.Call("WriteAdapter", 0x278, 0x1F);
  EXPECT_EQ(AskRig(Place(), "log"), "");
}

TEST_F(BenchLibrary, AnalogValueComesFromAnImpact) {
  EXPECT_EQ(m_library.Call("ReadAtoD", lAddress, 50000), 0);
  AskRig(Place(), "place 1800");
  m_library.Call("WriteAdapter", lAddress, 0x1F);
  EXPECT_TRUE(WaitFor([&] { return m_library.Call("ReadAtoD", lAddress, 50000) > 5; }));
}

TEST_F(BenchLibrary, PulledLeadLeavesTheAdapterAndASilentRig) {
  AskRig(Place(), "unplug");
  EXPECT_EQ(m_library.Call("IsAdapterConnected", lAddress), 1);
  EXPECT_EQ(m_library.Call("ReadAdapter", lAddress), 0);
  EXPECT_EQ(m_library.Call("ReadAtoD", lAddress, 50000), 0);
  EXPECT_EQ(m_library.Call("LPTAvailable"), 1);
  AskRig(Place(), "plug");
  EXPECT_EQ(m_library.Call("IsAdapterConnected", lAddress), 1);
  EXPECT_EQ(m_library.Call("ReadAdapter", lAddress), 0x88);
}

TEST_F(BenchLibrary, AnAdapterOffItsPortIsNone) {
  AskRig(Place(), "detach");
  EXPECT_EQ(m_library.Call("IsAdapterConnected", lAddress), 0);
  EXPECT_EQ(m_library.Call("ReadAdapter", lAddress), 0);
  AskRig(Place(), "attach");
  EXPECT_EQ(m_library.Call("IsAdapterConnected", lAddress), 1);
  EXPECT_EQ(m_library.Call("ReadAdapter", lAddress), 0x88);
}

TEST_F(BenchLibrary, PulledLeadCarriesNoAnalogValue) {
  m_library.Call("WriteAdapter", lAddress, 0x1F);
  AskRig(Place(), "place 1800");
  ASSERT_TRUE(WaitFor([&] { return m_library.Call("ReadAtoD", lAddress, 50000) > 5; }));
  AskRig(Place(), "unplug");
  EXPECT_EQ(m_library.Call("ReadAtoD", lAddress, 50000), 0);
}

TEST_F(BenchLibrary, ShutDownStopsTheVehicle) {
  m_library.Call("WriteAdapter", lAddress, 0x1F);
  m_library.Call("WriteAdapter", lAddress, 0);
  m_library.Call("SetStrobe", lAddress);
  m_library.Call("CloseLPT", m_library.Call("OpenLPT", 1));
  EXPECT_TRUE(Shows("power 0"));
  EXPECT_TRUE(Shows("direction backward"));
}

TEST_F(BenchLibrary, OnlyTheLowByteGoesOut) {
  m_library.Call("WriteAdapter", lAddress, 0x1E8);
  EXPECT_NE(AskRig(Place(), "log").find(" 0xE8 "), std::string::npos);
}

TEST(StandIn, OffersEveryOperationAndNoPort) {
  const Library library(TRACKPORT32_STANDIN);
  for (const char* sOperation : aOperations) {
    EXPECT_NE(library.Find(sOperation), nullptr) << sOperation;
  }
  EXPECT_EQ(library.Call("LPTAvailable"), 0);
  for (int lPort = 1; lPort <= 3; ++lPort) EXPECT_EQ(library.Call("LPTAddress", lPort), 0);
  EXPECT_EQ(library.Call("IsAdapterConnected", lAddress), 0);
  EXPECT_EQ(library.Call("OpenLPT", 1), 0);
  EXPECT_EQ(library.Call("ReadAdapter", lAddress), 0);
  EXPECT_EQ(library.Call("ReadAtoD", lAddress, 50000), 0);
}

}  // namespace
}  // namespace glidetrak::bench
