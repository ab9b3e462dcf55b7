#include "database_forms.h"

#include <qv_database_c/database_records.h>

namespace qv::database {

#define QV_FORM(document, key, space, table, record)                                                                   \
    namespace space {                                                                                                  \
    extern const TableOf<record> table;                                                                                \
    }
#include "database_forms.inc"
#undef QV_FORM

namespace {

#define QV_FORM(document, key, space, table, record) {document, key, &space::table},
constexpr Form kForms[] = {
#include "database_forms.inc"
};
#undef QV_FORM

} // namespace

std::span<const Form> forms()
{
    return kForms;
}

} // namespace qv::database
