# corvane_embed(target folder symbol) compiles every file of [folder] into [target] as the table
# `symbol` of {name without extension, bytes}; see forms/icons.h.
function(corvane_embed target folder symbol)
  file(GLOB files CONFIGURE_DEPENDS ${folder}/*.svg)
  set(output ${CMAKE_BINARY_DIR}/generated/${symbol}.cpp)
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -DOUTPUT=${output} "-DFOLDER=${folder}" -DSYMBOL=${symbol} -P
            ${CMAKE_SOURCE_DIR}/cmake/EmbedFiles.cmake
    DEPENDS ${files} ${CMAKE_SOURCE_DIR}/cmake/EmbedFiles.cmake
    VERBATIM)
  target_sources(${target} PRIVATE ${output})
endfunction()
