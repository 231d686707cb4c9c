#include "platform/windows/WindowsLibrary.h"

#include "platform/TrackportCall.h"
#include "platform/WindowsFolder.h"
#include "platform/windows/Api.h"

namespace glidetrak {
namespace {

class Library : public testing::Test {
 protected:
  Library() { SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX); }

  WindowsLibrary Made() { return WindowsLibrary(m_folder.Path().toStdWString()); }
  void Install(const char* sFile) {
    ASSERT_TRUE(QFile::copy(sFile, m_folder.Path("trackport32.dll"))) << sFile;
  }
  Fault FaultOfFinding(const char* sName, int iArguments) {
    WindowsLibrary library = Made();
    return FaultOf([&] { library.Find(sName, iArguments); });
  }

  WindowsFolder m_folder;
};

TEST_F(Library, ThatIsMissingHasNoOperations) {
  EXPECT_EQ(FaultOfFinding("LPTAvailable", 0), Fault::PlatformCall);
}

TEST_F(Library, ThatIsNoneHasNoOperations) {
  m_folder.AddFile("trackport32.dll", "not a library");
  EXPECT_EQ(FaultOfFinding("LPTAvailable", 0), Fault::PlatformCall);
}

/// The head of a 64-bit library, which no 32-bit process can load.
TEST_F(Library, Of64BitsHasNoOperations) {
  QByteArray head(512, 0);
  head.replace(0, 2, "MZ");
  head[0x3C] = 0x40;
  head.replace(0x40, 8, QByteArray::fromHex("5045000064860000"));
  head.replace(0x54, 6, QByteArray::fromHex("F00022200B02"));
  m_folder.AddFile("trackport32.dll", head);
  EXPECT_EQ(FaultOfFinding("LPTAvailable", 0), Fault::PlatformCall);
}

TEST_F(Library, FindsAnOperationByItsPlainName) {
  Install(PLAIN_LIBRARY);
  WindowsLibrary library = Made();
  EXPECT_EQ(CallOperation(library.Find("LPTAvailable", 0), {}), 0);
  EXPECT_EQ(FaultOf([&] { library.Find("NoSuchOperation", 0); }), Fault::PlatformCall);
}

TEST_F(Library, FindsAnOperationByItsDecoratedName) {
  Install(DECORATED_LIBRARY);
  WindowsLibrary library = Made();
  EXPECT_EQ(CallOperation(library.Find("LPTAvailable", 0), {}), 5);
  EXPECT_EQ(CallOperation(library.Find("LPTAddress", 1), {2}), 0x378 + 2);
  EXPECT_EQ(CallOperation(library.Find("WriteAdapter", 2), {0x378, 0x1F}), 0x378 * 256 + 0x1F);
  EXPECT_EQ(FaultOfFinding("WriteAdapter", 1), Fault::PlatformCall);
}

}  // namespace
}  // namespace glidetrak
