#pragma once

namespace qv::database {

/// The statuses that this library makes itself; all others come from the support libraries and pass through unchanged.
/// Their numbers are part of the interface and never change.
enum Status : int {
    kSuccess = 0,
    kNoContent = 2,      ///< the document holds no simulator metadata
    kNoMemory = 5,       ///< a holder or a member could not be allocated
    kCapacity = 6,       ///< the buffer ends too early, or a list is longer than the record's array
    kMemberMissing = 10, ///< the document has no such member, or an empty one
    kBadArgument = 13,   ///< a null handle, pointer or text, or an output pointer that is not clear
    kKeyMissing = 15,    ///< calibration text without the key or its brackets
};

} // namespace qv::database
