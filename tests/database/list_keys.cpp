// Prints include/qv_database_c/database_keys.hpp, made from the library's list of categories.

#include <cstdio>

#include <qv_database_c/qv_database.h>

int main()
{
    std::puts(
        "/// @file\n"
        "/// The keys of the categories, by the types of their records. Made by list_keys from the library's list:\n"
        "/// build/release/bin/list_keys > include/qv_database_c/database_keys.hpp\n"
        "#ifndef QV_DATABASE_C_DATABASE_KEYS_HPP\n"
        "#define QV_DATABASE_C_DATABASE_KEYS_HPP\n"
        "\n"
        "#include <qv_database_c/database_records.h>\n"
        "\n"
        "namespace qv {\n"
        "\n"
        "/// The key of the category that holds a record of this type; null where none does.\n"
        "template <class Record>\n"
        "inline constexpr const char* keyOf = nullptr;\n"
        "\n"
        "/** @cond */");
    const QvDatabaseCategory_t* pCategory = nullptr;
    for (std::size_t i = 0; (pCategory = QvDatabase_category(i)) != nullptr; ++i) {
        std::printf("template <>\ninline constexpr const char* keyOf<%s> = \"%s\";\n", pCategory->pRecord,
                    pCategory->pKey);
    }
    std::puts("/** @endcond */\n\n} // namespace qv\n\n#endif");
    return 0;
}
