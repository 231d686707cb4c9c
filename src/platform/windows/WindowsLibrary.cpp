#include "platform/windows/WindowsLibrary.h"

#include <QByteArray>
#include <cstring>

#include "platform/ProcessEnd.h"
#include "platform/RuntimeError.h"
#include "platform/windows/Api.h"

namespace glidetrak {

namespace {

/// What the library itself needs is looked for beside it first.
HMODULE Load(const std::wstring& sFolder) {
  const std::wstring sPath = sFolder + L"\\trackport32.dll";
  return LoadLibraryExW(sPath.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

/// The plain name, and the decorated one with and without the underscore that a compiler puts
/// ahead.
FARPROC Resolve(HMODULE library, const char* sName, int iArguments) {
  const QByteArray plain = sName;
  const QByteArray decorated = plain + '@' + QByteArray::number(4 * iArguments);
  for (const QByteArray& name : {plain, '_' + decorated, decorated}) {
    const FARPROC found = GetProcAddress(library, name.constData());
    if (found != nullptr) return found;
  }
  return nullptr;
}

}  // namespace

/// An operation that was called before is called again without a look into the library, as a
/// process that crashes calls it with nothing to rely on.
QFunctionPointer WindowsLibrary::Find(const char* sName, int iArguments) {
  for (const Operation& known : m_aOperations) {
    if (std::strcmp(known.sName, sName) == 0) return known.pointer;
  }
  if (m_library == nullptr) {
    m_library = Load(m_sFolder);
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
