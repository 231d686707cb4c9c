#pragma once

// The parallel library trackport32.dll, which stands beside the executable and is loaded at its
// first call.

#include <QtGlobal>
#include <utility>
#include <vector>

#include "platform/windows/ExecutablePath.h"

namespace glidetrak {

class WindowsLibrary {
 public:
  /// `sFolder` without a backslash at its end.
  explicit WindowsLibrary(std::wstring sFolder = ExecutableFolderPath())
      : m_sFolder(std::move(sFolder)) {}

  /// The operation of that name, a literal, exported by its plain name or by one that the standard
  /// call convention makes of it (_Name@4 or Name@4 for one argument). Throws PlatformCall when
  /// there is no such library or operation; a file that is no 32-bit library counts as none.
  QFunctionPointer Find(const char* sName, int iArguments);

 private:
  /// An operation that was called; the name is the caller's literal.
  struct Operation {
    const char* sName;
    QFunctionPointer pointer;
  };

  std::wstring m_sFolder;
  void* m_library = nullptr;  ///< handle; null until it was loaded, never let go
  std::vector<Operation> m_aOperations;
};

}  // namespace glidetrak
