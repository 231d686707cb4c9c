// The wire as a named pipe.

#include <aclapi.h>
#include <sddl.h>

#include <filesystem>
#include <fstream>

#include "WireFixture.h"
#include "bench/PipePlace.h"

namespace glidetrak::bench {
namespace {

constexpr const char* sAdministrators = "S-1-5-32-544";

/// As the system writes it: S-1-5-...
std::string SidText(PSID sid) {
  LPSTR pText = nullptr;
  EXPECT_NE(ConvertSidToStringSidA(sid, &pText), 0);
  const std::string sText = pText;
  LocalFree(pText);
  return sText;
}

class WireWindows : public WireTest {
 protected:
  /// What stands at the place and was made by no rig; its owner has that SID.
  SystemHandle MakeForeignPipe(const std::string& sOwner) const {
    SECURITY_ATTRIBUTES attributes{sizeof attributes, nullptr, FALSE};
    const std::string sText = "O:" + sOwner + "D:(A;;GA;;;WD)";
    EXPECT_NE(ConvertStringSecurityDescriptorToSecurityDescriptorA(
                  sText.c_str(), SDDL_REVISION_1, &attributes.lpSecurityDescriptor, nullptr),
              0);
    SystemHandle pipe(CreateNamedPipeA(Place().c_str(), PIPE_ACCESS_DUPLEX | FILE_FLAG_OVERLAPPED,
                                       PIPE_TYPE_BYTE, PIPE_UNLIMITED_INSTANCES, 4096, 4096, 0,
                                       &attributes));
    EXPECT_TRUE(pipe.IsOpen());
    LocalFree(attributes.lpSecurityDescriptor);
    return pipe;
  }

  static std::string UserText() { return OwnPipeName().substr(OwnPipeName().find("S-1-")); }
};

TEST_F(WireWindows, WithoutAWordThePlaceBearsTheUsersOwnNumber) {
  SetVariable("GLIDETRAK_BENCH_SOCKET", "");
  EXPECT_EQ(WireName().rfind("\\\\.\\pipe\\glidetrak-bench-S-1-5-", 0), 0u) << WireName();
}

TEST_F(WireWindows, ThePipeIsItsUsersAndForThatUserAlone) {
  const WireServer server(Place());
  const SystemHandle pipe = OpenPipe(Place());
  ASSERT_TRUE(pipe.IsOpen());
  PSID owner = nullptr;
  PACL pEntries = nullptr;
  PSECURITY_DESCRIPTOR pSecurity = nullptr;
  ASSERT_EQ(GetSecurityInfo(pipe.Get(), SE_KERNEL_OBJECT,
                            OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION, &owner, nullptr,
                            &pEntries, nullptr, &pSecurity),
            static_cast<DWORD>(ERROR_SUCCESS));
  EXPECT_EQ(SidText(owner), UserText());
  ASSERT_NE(pEntries, nullptr);
  ASSERT_EQ(pEntries->AceCount, 1);
  void* pEntry = nullptr;
  ASSERT_NE(GetAce(pEntries, 0, &pEntry), 0);
  EXPECT_EQ(SidText(&static_cast<ACCESS_ALLOWED_ACE*>(pEntry)->SidStart), UserText());
  LocalFree(pSecurity);
}

TEST_F(WireWindows, APipeThatNoRigMadeIsLeftAlone) {
  const SystemHandle foreign = MakeForeignPipe(UserText());
  EXPECT_EQ(Refusal(), Place() + " is in the way: it was not made by a bench rig of this user");
}

TEST_F(WireWindows, APipeOfAnotherOwnerIsNotSpokenTo) {
  const SystemHandle foreign = MakeForeignPipe(sAdministrators);
  EXPECT_FALSE(WireConnection().Connect(Place()));
}

TEST_F(WireWindows, APipeOfTheUsersOwnIsSpokenTo) {
  const SystemHandle own = MakeForeignPipe(UserText());
  EXPECT_TRUE(WireConnection().Connect(Place()));
}

TEST_F(WireWindows, AFileIsNoPlaceAndIsNotWrittenTo) {
  const std::string sFile =
      testing::TempDir() + "glidetrak-work-" + std::to_string(GetCurrentProcessId());
  std::ofstream(sFile) << "a year's work";
  EXPECT_THROW(const WireServer server(sFile), std::runtime_error);
  EXPECT_THROW(AskRig(sFile, "state"), std::runtime_error);
  std::string sText;
  std::getline(std::ifstream(sFile), sText);
  EXPECT_EQ(sText, "a year's work");
  std::filesystem::remove(sFile);
}

TEST_F(WireWindows, APipeOfAnotherMachineIsNoPlace) {
  EXPECT_THROW(const WireServer server("\\\\school\\pipe\\rig"), std::runtime_error);
  EXPECT_THROW(const WireServer server("\\\\.\\pipe\\"), std::runtime_error);
}

TEST_F(WireWindows, ThePlaceMayBeNamedInAnyLanguage) {
  const std::string sName = Place() + "-\xC3\xB1\xD0\xB6";  // n with tilde, and a Cyrillic letter
  const std::wstring sWide = std::wstring(Place().begin(), Place().end()) + L"-\u00F1\u0436";
  SetEnvironmentVariableW(L"GLIDETRAK_BENCH_SOCKET", sWide.c_str());
  ASSERT_EQ(WireName(), sName);
  const ServedRig rig(WireName());
  RigClient client;
  EXPECT_EQ(client.Exchange(RigAct::ReadInputs), 0x88);
}

}  // namespace
}  // namespace glidetrak::bench
