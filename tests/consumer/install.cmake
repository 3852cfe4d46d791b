# Installs BUILD_TREE to PREFIX, which is emptied first so that nothing of an older installation is found there.
file(REMOVE_RECURSE "${PREFIX}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_TREE}" --config "${CONFIG}" --prefix "${PREFIX}"
  COMMAND_ERROR_IS_FATAL ANY)
