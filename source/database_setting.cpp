#include <qv_database_c/database_setting.h>

#include "database_walk.h"

using namespace qv::database;

namespace {

QvDatabaseSetting_t default_()
{
    QvDatabaseSetting_t record{};
    record.protocol = QvDatabaseSettingProtocol_Standard;
    return record;
}

} // namespace

// The setting belongs to no document: its two codecs test their arguments and move nothing.

int QvDatabaseSetting_parse(QvJsonValue_t* pValue, QvDatabaseSetting_t* pConfig)
{
    return pValue == nullptr || pConfig == nullptr ? kBadArgument : kSuccess;
}

int QvDatabaseSetting_serialize(QvDatabaseSetting_t* pConfig, QvJsonValue_t* pValue)
{
    return pValue == nullptr || pConfig == nullptr ? kBadArgument : kSuccess;
}

QV_DEFAULT_RESET(QvDatabaseSetting, default_())
