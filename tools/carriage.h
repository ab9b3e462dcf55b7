#pragma once

// What the forms of a set carry of each record, and so what is a difference between two sets.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "files.h"
#include "path_tree.h"

namespace qv::tools {

/// A set of documents: bit 1 << QvDatabaseCatalogDocument_t for each.
using Documents = std::uint8_t;

constexpr Documents bitOf(QvDatabaseCatalogDocument_t document)
{
    return static_cast<Documents>(1U << document);
}

/// The documents whose fields are settings, but for class names, which are the same wherever they stand. Not among them:
/// what memory and images alone hold; the header of a text, which tells when and by what it was saved; and frame
/// metadata, which has files of its own.
constexpr Documents kSettings = bitOf(QvDatabaseCatalogDocument_Tuning) | bitOf(QvDatabaseCatalogDocument_Simulator) |
                                bitOf(QvDatabaseCatalogDocument_Calibration) |
                                bitOf(QvDatabaseCatalogDocument_Initialization);

/// Which documents carry each byte of a category's record.
class Carriage {
public:
    explicit Carriage(const QvDatabaseCatalogCategory_t& category);

    /// The documents that a load takes the field from, and those that a save writes it into.
    Documents readFrom(const Target& field) const { return read_[placeOf(field)]; }
    Documents writtenTo(const Target& field) const { return written_[placeOf(field)]; }

    /// Whether the field is a setting.
    bool isSetting(const Target& field) const;

    /// Whether a byte of the record belongs to no member.
    bool isPadding(std::size_t offset) const { return (read_[offset] & bitOf(QvDatabaseCatalogDocument_Memory)) == 0; }

private:
    static std::size_t placeOf(const Target& field);

    std::vector<Documents> read_;
    std::vector<Documents> written_;
    std::size_t className_ = SIZE_MAX; ///< place of the text that tells the class of an object
};

/// Whether two sets can differ in a category: a file carries it, and a set's file does.
bool isInSets(const QvDatabaseCatalogCategory_t& category);

/// The form of a file, as far as what it can carry goes.
struct Carrier {
    std::string name;    ///< such as "a simulator document"
    Documents documents; ///< none where a text holds nothing of a set
};

Carrier carrierOf(const Input& input);

} // namespace qv::tools
