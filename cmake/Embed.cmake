# corvane_embed(target folder symbol) compiles every drawing of [folder] into [target] as the table `symbol` of
# {name without extension, bytes, size}; see forms/icons.h. Windows has no reader of SVG: there each is an .ico file of
# several sizes.
function(corvane_embed target folder symbol)
  file(GLOB files CONFIGURE_DEPENDS ${folder}/*.svg)
  if(WIN32)
    set(drawn ${CMAKE_BINARY_DIR}/generated/${symbol})
    list(TRANSFORM files REPLACE "^.*/(.*)\\.svg$" "${drawn}/\\1.ico" OUTPUT_VARIABLE icons)
    add_custom_command(
      OUTPUT ${icons}
      COMMAND ${CMAKE_SOURCE_DIR}/scripts/draw-icons ${drawn} ${files}
      DEPENDS ${files} ${CMAKE_SOURCE_DIR}/scripts/draw-icons
      VERBATIM)
    set(files ${icons})
  endif()
  set(output ${CMAKE_BINARY_DIR}/generated/${symbol}.cpp)
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -DOUTPUT=${output} -DSYMBOL=${symbol} -P ${CMAKE_SOURCE_DIR}/cmake/EmbedFiles.cmake ${files}
    DEPENDS ${files} ${CMAKE_SOURCE_DIR}/cmake/EmbedFiles.cmake
    VERBATIM)
  target_sources(${target} PRIVATE ${output})
endfunction()
