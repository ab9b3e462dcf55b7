#pragma once

#include <qv_common_c/common_error.h>

namespace qv::database {

/// The statuses that this library makes itself; all others come from the support libraries and pass through unchanged.
enum Status : int {
    kSuccess = QvCommonError_Success,
    kNoContent = QvCommonError_NoContent,    ///< the document holds no simulator metadata
    kNoMemory = QvCommonError_OutOfMemory,   ///< a holder or a member could not be allocated
    kCapacity = QvCommonError_Capacity,      ///< the buffer ends too early, or a list is longer than the record's array
    kMemberMissing = QvCommonError_NoMember, ///< the document has no such member, or an empty one
    kBadArgument =
        QvCommonError_BadArgument,     ///< a null handle, pointer or text, or an output pointer that is not clear
    kKeyMissing = QvCommonError_NoKey, ///< calibration text without the key or its brackets
};

} // namespace qv::database
