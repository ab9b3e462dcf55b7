#include "initialization_record.h"

#include <cstring>

namespace qv::initialization {

void throwUnlessSuccess(int status)
{
    if (status != QvCommonError_Success) {
        throw StatusError{status};
    }
}

MemberPointer makeMember()
{
    QvInitializationMember_t* pMember = nullptr;
    throwUnlessSuccess(QvInitializationMember_create(&pMember));
    return MemberPointer(pMember);
}

SectionPointer makeSection()
{
    QvInitializationSection_t* pSection = nullptr;
    throwUnlessSuccess(QvInitializationSection_create(&pSection));
    return SectionPointer(pSection);
}

TextPointer copyOf(std::string_view text)
{
    TextPointer pCopy(static_cast<char*>(std::malloc(text.size() + 1)));
    if (pCopy == nullptr) {
        throw std::bad_alloc();
    }
    if (!text.empty()) {
        std::memcpy(pCopy.get(), text.data(), text.size());
    }
    pCopy.get()[text.size()] = '\0';
    return pCopy;
}

} // namespace qv::initialization
