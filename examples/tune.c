/*
 * Loads a tuning document, prints a value, changes one and saves the set.
 *
 *     example_tune imx477.json changed.json
 */
#include <stdio.h>

#include <qv_common_c/common_error.h>
#include <qv_database_c/database_2d_noise_reduction_5_2.h>
#include <qv_database_c/database_misc.h>
#include <qv_database_c/qv_database.h>

static int failed(const char* pWhat, int status)
{
    fprintf(stderr, "%s: %s (%d)\n", pWhat, QvCommonError_text(status), status);
    return 1;
}

static int tune(QvDatabaseHandle_t database, const char* pIn, const char* pOut)
{
    /* A query wants its pointer clear. The record stays in its place until the database is closed. */
    void* pData = NULL;
    int status = QvDatabase_query(database, "MISC", &pData);
    if (status != 0) {
        return failed("MISC", status);
    }
    const QvDatabaseMisc_t* pMisc = pData;

    pData = NULL;
    status = QvDatabase_query(database, "2DNR_5_2", &pData);
    if (status != 0) {
        return failed("2DNR_5_2", status);
    }
    QvDatabase2DNoiseReduction_5_2_t* pNoise = pData;

    status = QvDatabase_load(database, pIn);
    if (status != 0) {
        return failed(pIn, status);
    }
    printf("ISP %.*s, document version %.*s\n", (int)sizeof pMisc->ispVersion, pMisc->ispVersion,
           (int)sizeof pMisc->versionNumber, pMisc->versionNumber);
    printf("2DNR strength %d, sigma %.3f\n", pNoise->strength, (double)pNoise->sigma);

    pNoise->strength = (uint8_t)(pNoise->strength / 2);
    status = QvDatabase_save(database, pOut);
    if (status != 0) {
        return failed(pOut, status);
    }
    printf("saved with strength %d as %s\n", pNoise->strength, pOut);
    return 0;
}

int main(int argc, char* argv[])
{
    if (argc != 3) {
        fprintf(stderr, "usage: %s IN OUT\n", argv[0]);
        return 2;
    }
    QvDatabaseOpenParam_t param = {0};
    QvDatabaseHandle_t database = 0;
    int status = QvDatabase_open(&param, &database);
    if (status != 0) {
        return failed("open", status);
    }
    const int result = tune(database, argv[1], argv[2]);
    status = QvDatabase_close(&database);
    return status == 0 ? result : failed("close", status);
}
