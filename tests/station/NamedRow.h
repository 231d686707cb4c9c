#pragma once

// Rows of a test table that bear a name of their own, by which their test is listed.

#include <gtest/gtest.h>

#include <concepts>
#include <ostream>
#include <string>

namespace glidetrak {

struct NamedRow {
  const char* sName;
};

template <std::derived_from<NamedRow> Row>
void PrintTo(const Row& row, std::ostream* pStream) {
  *pStream << row.sName;
}

/// The name generator of such a table.
struct RowName {
  template <class Row>
  std::string operator()(const testing::TestParamInfo<Row>& row) const {
    return row.param.sName;
  }
};

}  // namespace glidetrak
