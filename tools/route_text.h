#pragma once

// JSON text of what stands on the way to a field and isn't in a document yet.

#include <cstddef>
#include <string>

#include "routes.h"
#include "written.h"

namespace qv::tools {

/// Writes parts of a record along a route: of objects only the member that leads on, lists of numbers and lists whose
/// length counts whole.
class RouteText {
public:
    RouteText(const Route& route, const std::byte* pRecord) : route_(route), pRecord_(pRecord) {}

    /// The value of a step's member, with the blanks before its key.
    std::string member(std::size_t step, const Layout& layout, const std::string& indent) const;

    /// The object whose member a step is.
    std::string object(std::size_t step, const Layout& layout, const std::string& indent) const;

    /// The same of the first step, with its class.
    std::string classObject(const QvDatabaseCatalogCategory_t& category, const Layout& layout,
                            const std::string& indent) const;

    /// An item of a step's list, in the dimension that so many indices lead to.
    std::string item(std::size_t step, std::size_t dimension, std::size_t index, const Layout& layout,
                     const std::string& indent) const;

private:
    std::string keyed(std::size_t step, const Layout& layout, const std::string& indent) const;

    const Route& route_;
    const std::byte* pRecord_;
};

} // namespace qv::tools
