#pragma once

// JSON text of what stands on the way to a field and isn't in a document yet.

#include <cstddef>
#include <string>
#include <vector>

#include "routes.h"
#include "written.h"

namespace qv::tools {

/// Writes parts of a record along a route: of objects only the member that leads on, and those that a load would clear
/// if they were missing; lists of numbers and counted lists whole.
class RouteText {
public:
    RouteText(const Route& route, const std::byte* pRecord) : route_(route), pRecord_(pRecord) {}

    /// The value of a step's member, with the blanks before its key.
    std::string member(std::size_t step, const Layout& layout, const std::string& indent) const;

    /// The object whose member a step is, among the fields of its record.
    std::string object(std::size_t step, const std::vector<FieldNode>& fields, const Layout& layout,
                       const std::string& indent) const;

    /// The same of the outermost step, with its class.
    std::string classObject(const std::vector<FieldNode>& fields, const QvDatabaseCatalogCategory_t& category,
                            const Layout& layout, const std::string& indent) const;

    /// An item of a step's list, in the dimension that so many indices lead to.
    std::string item(std::size_t step, std::size_t dimension, std::size_t index, const Layout& layout,
                     const std::string& indent) const;

private:
    std::vector<std::string> members(std::size_t step, const std::vector<FieldNode>& fields, const std::byte* pBase,
                                     const Layout& layout, const std::string& indent) const;

    const Route& route_;
    const std::byte* pRecord_;
};

} // namespace qv::tools
