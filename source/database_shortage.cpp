#include "database_shortage.h"

namespace qv::database {
namespace {

// Initial-exec: the thread's storage stands when the thread does, and nothing is allocated at the first use.
[[gnu::tls_model("initial-exec")]] constinit thread_local bool hasShortage = false;

} // namespace

void clearShortage()
{
    hasShortage = false;
}

void noteShortage()
{
    hasShortage = true;
}

bool isShort()
{
    return hasShortage;
}

QvJsonValue_t* writableMember(QvJsonValue_t* pValue, const char* pKey)
{
    QvJsonValue_t* pMember = QvJsonValue_member(pValue, pKey);
    if (QvJsonValue_member2(pValue, pKey) != pMember) {
        noteShortage();
    }
    return pMember;
}

QvJsonValue_t* writableItem(QvJsonValue_t* pValue, std::size_t index)
{
    QvJsonValue_t* pItem = QvJsonValue_item(pValue, index);
    if (QvJsonValue_size(pValue) <= index) {
        noteShortage();
    }
    return pItem;
}

} // namespace qv::database
