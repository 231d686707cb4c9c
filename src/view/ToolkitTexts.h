#pragma once

namespace glidetrak {

/// Gives the toolkit's own texts (Yes, No, the file dialogs) and its locale (dates, sizes, kinds of
/// files) the interface language. Cheap when it was done before; to be called ahead of whatever
/// shows such texts, since the language is decided during start-up.
void InstallToolkitTexts();

}  // namespace glidetrak
