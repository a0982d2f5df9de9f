# Installs a build into a fresh folder, and builds and runs a host against what lies there:
# cmake -DBUILD=... -DSOURCE=... -DWORK=... -DFLAGS=... -DCOMPILER=... -DGENERATOR=... -DTYPE=...
#       -DQT=... -P install_test.cmake
cmake_minimum_required(VERSION 3.25)
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output
    ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    string(JOIN " " command ${ARGN})
    message(FATAL_ERROR "${command}\nended with ${status}:\n${output}")
  endif()
endfunction()

file(REMOVE_RECURSE "${WORK}")
run("${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${WORK}/prefix")
# The sources are not looked at again: a header that was left out is missed here.
run("${CMAKE_COMMAND}" -S "${SOURCE}" -B "${WORK}/build" -G "${GENERATOR}"
  "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=${FLAGS}" "-DCMAKE_BUILD_TYPE=${TYPE}"
  "-DCMAKE_PREFIX_PATH=${WORK}/prefix" -DCMAKE_CXX_STANDARD=20)
run("${CMAKE_COMMAND}" --build "${WORK}/build")
run("${WORK}/build/host")
if(QT)
  run("${WORK}/build/qt_host")
endif()
file(GLOB_RECURSE headers "${WORK}/prefix/include/*.h")
foreach(header IN LISTS headers)
  file(STRINGS "${header}" private REGEX "#include [<\"](libxml|nlohmann)/")
  if(private)
    message(FATAL_ERROR "${header} shows what the library is built with: ${private}")
  endif()
endforeach()
