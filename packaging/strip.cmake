# Ahead of the packing: takes the notes of the compiler out of the programs.
file(GLOB programs ${CPACK_TEMPORARY_DIRECTORY}/*/usr/bin/*)
foreach(program ${programs})
  execute_process(COMMAND strip --strip-all --remove-section=.comment --remove-section=.note ${program}
    COMMAND_ERROR_IS_FATAL ANY)
endforeach()
