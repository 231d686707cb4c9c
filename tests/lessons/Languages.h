#pragma once

#include "lessons/LessonRun.h"

namespace glidetrak {

inline auto BothLanguages() {
  return ::testing::Values(Language{"English", "/LC=0409", ""},
                           Language{"Spanish", "/LC=0C0A", "/Language/0C0A"});
}

inline std::string LanguageName(const ::testing::TestParamInfo<Language>& row) {
  return row.param.sName;
}

}  // namespace glidetrak
