# The tests of the field families: triplets, value words, descriptors, maps and includes.
set(FAMILY_TESTS
  family_support.cpp
  decode/triplet_names_test.cpp
  decode/triplet_procedures_test.cpp
  decode/triplets_table_test.cpp
  decode/triplets_test.cpp)
