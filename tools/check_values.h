#pragma once

// Single values held against their fields.

#include <string>
#include <vector>

#include <qv_database_c/database_catalog.h>

#include "document_fields.h"
#include "findings.h"

namespace qv::tools {

struct ValueFault {
    Fault fault;
    std::string text;
};

/// The common case, told without a word: an integer in its type, or a float, that nothing more is known of.
bool isPlain(const Document& document, NodeIndex node, const QvDatabaseCatalogField_t& field);

/// What is wrong with one number, bool or text of a document that a field takes, and what the field gets of it. Adds
/// nothing for one that is loaded as it stands.
void checkValue(const Document& document, NodeIndex node, const Bound& bound, std::vector<ValueFault>& faults);

/// What is odd about a number that a field holds: its range, and the names of its values.
void checkMeaning(const QvDatabaseCatalogField_t& field, double number, std::vector<ValueFault>& faults);

/// A number with as many digits as tell it from any other.
std::string shortNumber(double number);

} // namespace qv::tools
