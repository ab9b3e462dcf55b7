#include <qv_database_c/qv_database_version.h>

#define QV_TEXT(number) #number
#define QV_VERSION(major, minor, patch) QV_TEXT(major) "." QV_TEXT(minor) "." QV_TEXT(patch)

const char* QvDatabase_version(void)
{
    return QV_VERSION(QV_DATABASE_VERSION_MAJOR, QV_DATABASE_VERSION_MINOR, QV_DATABASE_VERSION_PATCH);
}
