#include "platform/windows/WindowsLibrary.h"

#include <QByteArray>
#include <cstring>

#include "platform/ProcessEnd.h"
#include "platform/RuntimeError.h"
#include "platform/windows/Api.h"
#include "platform/windows/ExecutablePath.h"

namespace glidetrak {

namespace {

/// What the library itself needs is looked for beside it first.
HMODULE Load() {
  const std::wstring sPath = ExecutableFolderPath() + L"\\trackport32.dll";
  return LoadLibraryExW(sPath.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

FARPROC Resolve(HMODULE library, const char* sName, int iArguments) {
  const FARPROC plain = GetProcAddress(library, sName);
  if (plain != nullptr) return plain;
  const QByteArray decorated = '_' + QByteArray(sName) + '@' + QByteArray::number(4 * iArguments);
  return GetProcAddress(library, decorated.constData());
}

}  // namespace

/// An operation that was called before is called again without a look into the library, as a
/// process that crashes calls it with nothing to rely on.
QFunctionPointer WindowsLibrary::Find(const char* sName, int iArguments) {
  for (const Operation& known : m_aOperations) {
    if (std::strcmp(known.sName, sName) == 0) return known.pointer;
  }
  if (m_library == nullptr) {
    m_library = Load();
    if (m_library == nullptr) throw RuntimeError(Fault::PlatformCall);
    MoveLastDeedAhead();
  }
  const FARPROC found = Resolve(static_cast<HMODULE>(m_library), sName, iArguments);
  if (found == nullptr) throw RuntimeError(Fault::PlatformCall);
  const auto pointer = reinterpret_cast<QFunctionPointer>(found);
  m_aOperations.push_back({sName, pointer});
  return pointer;
}

}  // namespace glidetrak
