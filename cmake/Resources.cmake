# The program folder holds dictionary/, docs/ and profile/ beside the executables.
set(ZENTREL_PROGRAM_FOLDER ${CMAKE_BINARY_DIR}/bin)
file(MAKE_DIRECTORY ${ZENTREL_PROGRAM_FOLDER})
add_custom_target(zentrel_resources ALL
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/resources/dictionary
          ${ZENTREL_PROGRAM_FOLDER}/dictionary
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/resources/docs
          ${ZENTREL_PROGRAM_FOLDER}/docs
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/resources/profile
          ${ZENTREL_PROGRAM_FOLDER}/profile
  COMMENT "Copying dictionary/, docs/ and profile/ into the program folder")
