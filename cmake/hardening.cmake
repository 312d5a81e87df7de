# A release build is what people install: it is made to withstand what slips through, and it names no folder of the
# machine that built it.
if(CMAKE_BUILD_TYPE STREQUAL Release AND NOT FOLIOSCOPE_SANITIZE)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  include(CheckPIESupported)
  check_pie_supported(LANGUAGES CXX)
  # Since all is bound at the start, the way round by a table of calls is of no use.
  add_compile_options(-fstack-protector-strong -fno-plt -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2
                      -ffile-prefix-map=${PROJECT_BINARY_DIR}=. -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
  add_link_options(-Wl,-z,relro -Wl,-z,now)
endif()
