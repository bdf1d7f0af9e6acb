# Every class has a sentence in its header, and so has everything that it publishes.
execute_process(COMMAND ${QELREF} --missing OUTPUT_VARIABLE missing RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "qelref --missing ended with ${result}")
endif()
if(NOT missing STREQUAL "")
  message(FATAL_ERROR "These have no doc comment (a property's is above its getter or setter, an "
                      "event's above its member):\n${missing}")
endif()
