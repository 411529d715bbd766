# Installs the build into a scratch prefix, then builds and runs a host against it twice:
# through find_package(MoxieLook) and through pkg-config.
#   cmake -DBUILD_DIR=... -DSOURCE_DIR=... -DWORK_DIR=... -P RunInstalledHost.cmake
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "failed: ${ARGN}\n${out}\n${err}")
    endif()
    message("${out}")
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})

run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/tests/install/host -B ${WORK_DIR}/host
    -DCMAKE_PREFIX_PATH=${prefix})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/host)
run(${WORK_DIR}/host/host)

set(ENV{PKG_CONFIG_PATH} ${prefix}/lib/pkgconfig)
execute_process(COMMAND pkg-config --cflags --libs moxielook CEGUI-0-NULL
                OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE status)
execute_process(COMMAND pkg-config --variable=datadir moxielook
                OUTPUT_VARIABLE datadir OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND pkg-config --variable=moduledir moxielook
                OUTPUT_VARIABLE moduledir OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "pkg-config does not know moxielook")
endif()
separate_arguments(flags UNIX_COMMAND "${flags}")
run(c++ -std=c++17 ${SOURCE_DIR}/tests/install/host/main.cpp -o ${WORK_DIR}/host-pc
    "-DMOXIE_DATA_DIR=\"${datadir}\"" "-DMOXIE_MODULE_DIR=\"${moduledir}\"" ${flags})
run(${WORK_DIR}/host-pc)
