#include "platform/windows/WindowsFiles.h"

#include <algorithm>
#include <utility>

#include "platform/Platform.h"
#include "platform/windows/Api.h"
#include "platform/windows/WindowsPaths.h"

namespace glidetrak {

namespace {

constexpr DWORD lAnySharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD lKeptAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
constexpr qsizetype iChunk = 16 * 1024 * 1024;  ///< bytes that one call reads or writes

/// An open file, closed when it goes.
class OpenFile {
 public:
  OpenFile(const std::wstring& sPath, DWORD lAccess, DWORD lSharing, DWORD lDisposition,
           DWORD lAttributes = FILE_ATTRIBUTE_NORMAL)
      : m_file(sPath.empty() ? INVALID_HANDLE_VALUE
                             : CreateFileW(sPath.c_str(), lAccess, lSharing, nullptr, lDisposition,
                                           lAttributes, nullptr)) {}
  ~OpenFile() {
    if (IsOpen()) CloseHandle(m_file);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  bool IsOpen() const { return m_file != INVALID_HANDLE_VALUE; }
  HANDLE Handle() const { return m_file; }

  /// False when the disk did not take it all.
  bool Close() { return CloseHandle(std::exchange(m_file, INVALID_HANDLE_VALUE)) != 0; }

 private:
  HANDLE m_file;
};

/// Of a path that names nothing, and of one that nothing can bear.
DWORD AttributesOf(const std::wstring& sPath) {
  const DWORD lAttributes =
      sPath.empty() ? INVALID_FILE_ATTRIBUTES : GetFileAttributesW(sPath.c_str());
  if (lAttributes == INVALID_FILE_ATTRIBUTES) throw RuntimeError(Fault::FileNotFound);
  return lAttributes;
}

/// A file that this user may not write, whatever its attributes say. Opening writes nothing.
bool IsWritingRefused(const std::wstring& sPath) {
  const OpenFile file(sPath, FILE_WRITE_DATA, lAnySharing, OPEN_EXISTING);
  return !file.IsOpen() && GetLastError() == ERROR_ACCESS_DENIED;
}

/// Where a link leads; the path itself where there is none.
std::wstring TargetOf(const std::wstring& sPath) {
  const OpenFile file(sPath, FILE_READ_ATTRIBUTES, lAnySharing, OPEN_EXISTING);
  if (!file.IsOpen()) return sPath;
  std::wstring sTarget(32768, 0);
  const DWORD lLength = GetFinalPathNameByHandleW(file.Handle(), sTarget.data(),
                                                  static_cast<DWORD>(sTarget.size()), 0);
  if (lLength == 0 || lLength >= sTarget.size()) return sPath;
  sTarget.resize(lLength);
  return sTarget;
}

QByteArray ReadAll(HANDLE file) {
  LARGE_INTEGER size{};
  if (!GetFileSizeEx(file, &size) || size.QuadPart > MAXLONG) throw RuntimeError(Fault::FileAccess);
  QByteArray bytes(static_cast<qsizetype>(size.QuadPart), Qt::Uninitialized);
  qsizetype iRead = 0;
  while (iRead < bytes.size()) {
    DWORD lCount = 0;
    const auto lWanted = static_cast<DWORD>(std::min(iChunk, bytes.size() - iRead));
    if (!::ReadFile(file, bytes.data() + iRead, lWanted, &lCount, nullptr)) {
      throw RuntimeError(Fault::FileAccess);
    }
    if (lCount == 0) break;
    iRead += static_cast<qsizetype>(lCount);
  }
  bytes.truncate(iRead);
  return bytes;
}

bool WriteAll(HANDLE file, const QByteArray& bytes) {
  qsizetype iWritten = 0;
  while (iWritten < bytes.size()) {
    DWORD lCount = 0;
    const auto lWanted = static_cast<DWORD>(std::min(iChunk, bytes.size() - iWritten));
    if (!::WriteFile(file, bytes.constData() + iWritten, lWanted, &lCount, nullptr)) return false;
    if (lCount == 0) return false;
    iWritten += static_cast<qsizetype>(lCount);
  }
  return true;
}

}  // namespace

QByteArray WindowsFiles::Read(const QString& sPath) {
  const std::wstring sCall = CallPath(sPath);
  const DWORD lAttributes = AttributesOf(sCall);
  const OpenFile file(sCall, GENERIC_READ, lAnySharing, OPEN_EXISTING);
  // A device or a pipe would block: what is no regular file cannot be read.
  if ((lAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 || !file.IsOpen() ||
      GetFileType(file.Handle()) != FILE_TYPE_DISK) {
    throw RuntimeError(Fault::FileAccess);
  }
  return ReadAll(file.Handle());
}

int WindowsFiles::Attributes(const QString& sPath) {
  const std::wstring sCall = CallPath(sPath);
  const DWORD lAttributes = AttributesOf(sCall);
  if ((lAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return attrFolder;
  const bool bReadOnly = (lAttributes & FILE_ATTRIBUTE_READONLY) != 0 || IsWritingRefused(sCall);
  return bReadOnly ? attrReadOnly : 0;
}

/// A hidden file can be replaced only as a hidden one.
void WindowsFiles::Write(const QString& sPath, const QByteArray& bytes) {
  const std::wstring sNow = TargetOf(CallPath(sPath));
  const DWORD lNow = sNow.empty() ? INVALID_FILE_ATTRIBUTES : GetFileAttributesW(sNow.c_str());
  const Deleted gone = m_aDeleted.take(sPath);
  const bool bAnew = lNow == INVALID_FILE_ATTRIBUTES;
  const DWORD lOld = bAnew ? gone.lAttributes : lNow;
  // Not left to the disk, which may be another system's.
  if ((lOld & FILE_ATTRIBUTE_READONLY) != 0) throw RuntimeError(Fault::FileAccess);
  OpenFile file(bAnew && !gone.sTarget.empty() ? gone.sTarget : sNow, GENERIC_WRITE, 0,
                CREATE_ALWAYS, FILE_ATTRIBUTE_ARCHIVE | (lOld & lKeptAttributes));
  if (!file.IsOpen()) throw RuntimeError(Fault::FileAccess);
  const bool bWritten = WriteAll(file.Handle(), bytes);
  if (!file.Close() || !bWritten) throw RuntimeError(Fault::WriteBroken);
}

/// Of a link it is the target that goes: the link itself stays, and a later write follows it.
void WindowsFiles::Delete(const QString& sPath) {
  const std::wstring sCall = CallPath(sPath);
  const Deleted gone{TargetOf(sCall), AttributesOf(sCall)};
  if (!DeleteFileW(gone.sTarget.c_str())) throw RuntimeError(Fault::FileAccess);
  m_aDeleted.insert(sPath, gone);
}

}  // namespace glidetrak
