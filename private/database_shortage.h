#pragma once

// Codecs go on where a member can't be written, and the JSON library answers a lookup without memory by a value of its
// own. Either way a document is left with less than its records hold, and no status says so. What is noted here lets a
// save tell, and leave the file that stands there alone.

#include <cstddef>

#include <qv_json_c/json_value.h>

namespace qv::database {

/// Begins anew, for the calling thread.
void clearShortage();
/// Something is left out for want of memory. Traces of status 5 note it themselves.
void noteShortage();
/// Whether anything was since the last clear.
bool isShort();

/// The member, or the item, that a writer fills, as QvJsonValue_member and QvJsonValue_item give it. A value that
/// stands in no tree, and so takes what it is given with it, is noted.
QvJsonValue_t* writableMember(QvJsonValue_t* pValue, const char* pKey);
QvJsonValue_t* writableItem(QvJsonValue_t* pValue, std::size_t index);

} // namespace qv::database
