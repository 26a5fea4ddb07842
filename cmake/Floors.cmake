# A floor of the house is a static library of the sources in one folder. What it links to is what it may know:
# an include that runs upwards fails the check in tests/house. MOC: the folder has Qt meta-objects or resources.
# ROOMS: folders within the floor that belong to it. PRECOMPILES or LIKE: see Precompiled.cmake.
function(qm6_floor name)
  cmake_parse_arguments(FLOOR "MOC" "PRECOMPILES;LIKE" "KNOWS;ROOMS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/*.h"
       "${CMAKE_CURRENT_SOURCE_DIR}/*.qrc")
  foreach(room ${FLOOR_ROOMS})
    file(GLOB in_room CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${room}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/${room}/*.h")
    list(APPEND sources ${in_room})
  endforeach()
  add_library(qm6_${name} STATIC ${sources})
  set_target_properties(qm6_${name} PROPERTIES AUTOMOC ${FLOOR_MOC} AUTORCC ${FLOOR_MOC})
  target_include_directories(qm6_${name} PUBLIC "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}/include")
  target_link_libraries(qm6_${name} PUBLIC qm6_flags ${FLOOR_KNOWS})
  qm6_precompile(qm6_${name} "${FLOOR_PRECOMPILES}" "${FLOOR_LIKE}")

  file(RELATIVE_PATH folder "${PROJECT_SOURCE_DIR}/src" "${CMAKE_CURRENT_SOURCE_DIR}")
  list(JOIN FLOOR_KNOWS " " known)
  set_property(GLOBAL APPEND PROPERTY QM6_FLOORS "qm6_${name} ${folder} ${known}")
endfunction()

# Writes every floor with its folder and what it links to into a file, for the check of the includes.
function(qm6_write_floors file)
  get_property(floors GLOBAL PROPERTY QM6_FLOORS)
  list(JOIN floors "\n" lines)
  file(CONFIGURE OUTPUT "${file}" CONTENT "${lines}\n" @ONLY)
endfunction()
