# 32-bit x86 Linux, built on an x86_64 host with g++-multilib.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_C_FLAGS_INIT -m32)
set(CMAKE_CXX_FLAGS_INIT -m32)
set(CMAKE_EXE_LINKER_FLAGS_INIT -m32)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -m32)
set(CMAKE_MODULE_LINKER_FLAGS_INIT -m32)
set(CMAKE_LIBRARY_ARCHITECTURE i386-linux-gnu)

# Some x86_64 kernels are built without 32-bit support and refuse to execute the tests. There the
# test programs (their discovery, ctest and the tool tests) run under qemu's user-mode emulator;
# everywhere else they run natively. Probed once on every configure, so a build tree never keeps a
# stale answer (CMake reads this file several times a run; try_compile's inner projects need no probe).
get_property(plurex_in_try_compile GLOBAL PROPERTY IN_TRY_COMPILE)
get_property(plurex_probed GLOBAL PROPERTY PLUREXDATA_I386_PROBED SET)
if(plurex_probed)
    get_property(CMAKE_CROSSCOMPILING_EMULATOR GLOBAL PROPERTY PLUREXDATA_I386_PROBED)
elseif(NOT plurex_in_try_compile)
    set(plurex_probe_dir ${CMAKE_BINARY_DIR}/i386-probe)
    file(WRITE ${plurex_probe_dir}/probe.cpp "int main() { return 0; }\n")
    if(CMAKE_CXX_COMPILER)
        set(plurex_probe_compiler ${CMAKE_CXX_COMPILER})
    else()
        set(plurex_probe_compiler c++)
    endif()
    execute_process(COMMAND ${plurex_probe_compiler} -m32 probe.cpp -o probe
        WORKING_DIRECTORY ${plurex_probe_dir} RESULT_VARIABLE plurex_probe_built
        OUTPUT_VARIABLE plurex_probe_output ERROR_VARIABLE plurex_probe_output)
    if(NOT plurex_probe_built EQUAL 0)
        message(FATAL_ERROR "i386: cannot link a 32-bit program (scripts/install-deps installs "
                            "g++-multilib):\n${plurex_probe_output}")
    endif()
    execute_process(COMMAND ${plurex_probe_dir}/probe RESULT_VARIABLE plurex_probe_ran
        OUTPUT_QUIET ERROR_QUIET)
    if(plurex_probe_ran EQUAL 0)
        message(STATUS "i386: the kernel runs 32-bit programs natively")
    else()
        find_program(PLUREXDATA_QEMU_I386 qemu-i386-static)
        if(NOT PLUREXDATA_QEMU_I386)
            message(FATAL_ERROR "i386: this kernel cannot run 32-bit programs (${plurex_probe_ran}) and "
                                "qemu-i386-static is missing (scripts/install-deps installs qemu-user-static)")
        endif()
        execute_process(COMMAND ${PLUREXDATA_QEMU_I386} ${plurex_probe_dir}/probe
            RESULT_VARIABLE plurex_probe_emulated OUTPUT_QUIET ERROR_QUIET)
        if(NOT plurex_probe_emulated EQUAL 0)
            message(FATAL_ERROR "i386: a 32-bit program fails natively and under ${PLUREXDATA_QEMU_I386}")
        endif()
        message(STATUS "i386: the kernel cannot run 32-bit programs; they run under ${PLUREXDATA_QEMU_I386}")
        set(CMAKE_CROSSCOMPILING_EMULATOR ${PLUREXDATA_QEMU_I386})
    endif()
    set_property(GLOBAL PROPERTY PLUREXDATA_I386_PROBED "${CMAKE_CROSSCOMPILING_EMULATOR}")
endif()
