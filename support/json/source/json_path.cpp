#include <qv_json_c/json_path.h>

#include <string_view>

#include "scratch_value.h"
#include "value_tree.h"
#include <qv_common_c/common_error.h>

using namespace qv::json;

int QvJsonPath(QvJsonValue_t* pValue, const char* pPath, QvJsonValue_t** ppValue)
{
    if (pValue == nullptr || pPath == nullptr || ppValue == nullptr) {
        return QvCommonError_BadArgument;
    }
    std::string_view path = pPath;
    while (!path.empty()) {
        const std::string_view step = path.substr(0, path.find('/'));
        path.remove_prefix(step.size() < path.size() ? step.size() + 1 : step.size());
        if (step.empty()) {
            continue;
        }
        if (pValue->type != QvJsonValueType_Null && pValue->type != QvJsonValueType_Object) {
            *ppValue = scratchValue();
            return QvCommonError_Success;
        }
        if (!becomeObject(*pValue)) {
            return QvCommonError_OutOfMemory;
        }
        QvJsonValue_t* pMember = findMember(*pValue, step);
        pValue = pMember != nullptr ? pMember : appendMember(*pValue, step);
        if (pValue == nullptr) {
            return QvCommonError_OutOfMemory;
        }
    }
    *ppValue = pValue;
    return QvCommonError_Success;
}
