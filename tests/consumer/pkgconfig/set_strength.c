/*
 * A C11 program that knows of the libraries what pkg-config tells: changes a value, saves it in one form, loads it again
 * and saves it in another.
 *
 *     set_strength FOLDER
 */
#include <inttypes.h>
#include <stdio.h>
#include <string.h>

#include <qv_common_c/qv_common.h>
#include <qv_database_c/database_records.h>
#include <qv_database_c/qv_database.h>

static int check(const char* pWhat, int status)
{
    if (status != 0) {
        fprintf(stderr, "%s: %s\n", pWhat, QvCommonError_text(status));
    }
    return status;
}

static int strengthOf(QvDatabaseHandle_t database, uint8_t** ppStrength)
{
    void* pData = NULL;
    const int status = QvDatabase_query(database, "2DNR_5_2", &pData);
    if (status == 0) {
        *ppStrength = &((QvDatabase2DNoiseReduction_5_2_t*)pData)->strength;
    }
    return status;
}

static int work(QvDatabaseHandle_t database, const char* pFolder)
{
    char image[4096];
    char text[4096];
    snprintf(image, sizeof image, "%s/set.bin", pFolder);
    snprintf(text, sizeof text, "%s/set.json", pFolder);
    uint8_t* pStrength = NULL;
    if (check("2DNR_5_2", strengthOf(database, &pStrength)) != 0) {
        return 1;
    }
    *pStrength = 48;
    if (check(image, QvDatabase_save(database, image)) != 0) {
        return 1;
    }
    *pStrength = 0;
    if (check(image, QvDatabase_load(database, image)) != 0 || check(text, QvDatabase_save(database, text)) != 0) {
        return 1;
    }
    printf("strength %d\n", *pStrength);
    return 0;
}

int main(int argc, char* argv[])
{
    /* Without the banner: warnings and errors alone. */
    QvCommonTracerOpenParam_t tracer = {0};
    tracer.level = QvCommonTracerLevel_Warning;
    if (argc != 2 || check("tracer", QvCommonTracer_open(&tracer, &hTracer)) != 0) {
        return 2;
    }
    char compiled[32];
    snprintf(compiled, sizeof compiled, "%d.%d.%d", QV_DATABASE_VERSION_MAJOR, QV_DATABASE_VERSION_MINOR,
             QV_DATABASE_VERSION_PATCH);
    printf("version %s\n", strcmp(compiled, QvDatabase_version()) == 0 ? compiled : "differs");
    QvDatabaseOpenParam_t param = {0};
    QvDatabaseHandle_t database = 0;
    int result = check("open", QvDatabase_open(&param, &database)) != 0 || work(database, argv[1]) != 0;
    result |= check("close", QvDatabase_close(&database));
    QvCommonTracer_close(&hTracer);
    return result;
}
