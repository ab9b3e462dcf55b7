#pragma once

#include <string>

namespace qv::test {

/// Every row of every table in one text: document, category, codec, then a line a row with key, element, extents,
/// offset, bytes and what is out of the ordinary.
std::string listForms();

} // namespace qv::test
