# The CMake package of the parameter database: targets qv::database, qv::json, qv::initialization and qv::common.
#
#     find_package(qv_database 0.1 REQUIRED COMPONENTS database)
#     target_link_libraries(program PRIVATE qv::database)
#
# The components are the targets' names. Asking for some changes nothing but the answer: all targets are there anyway.

include(${CMAKE_CURRENT_LIST_DIR}/qv_database-targets.cmake)

foreach(component IN LISTS qv_database_FIND_COMPONENTS)
    if(TARGET qv::${component})
        set(qv_database_${component}_FOUND TRUE)
    elseif(qv_database_FIND_REQUIRED_${component})
        set(qv_database_FOUND FALSE)
        string(APPEND qv_database_NOT_FOUND_MESSAGE
            "There is no component ${component}: there are database, json, initialization and common. ")
    endif()
endforeach()
