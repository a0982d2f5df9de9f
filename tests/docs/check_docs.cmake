# What the documentation shows is what there is: cmake -DSOURCE=... -DPROBE=... -P check_docs.cmake
cmake_minimum_required(VERSION 3.25)

# Fails unless `document` holds, in a fenced block of its own, `text` as it stands.
function(expect_block document language text what)
  file(READ "${SOURCE}/${document}" content)
  string(FIND "${content}" "\n```${language}\n${text}```\n" place)
  if(place EQUAL -1)
    message(SEND_ERROR "${document} does not show ${what} as it is:\n${text}")
  endif()
endfunction()

file(READ "${SOURCE}/examples/embed_view/main.cpp" example)
expect_block(docs/host-guide.md cpp "${example}" examples/embed_view/main.cpp)

file(READ "${SOURCE}/examples/first_steps.jsonl" recording)
expect_block(README.md json "${recording}" examples/first_steps.jsonl)
if(PROBE)
  execute_process(COMMAND "${PROBE}" "${SOURCE}/examples/first_steps.jsonl"
    OUTPUT_VARIABLE answers RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(SEND_ERROR "quill-probe ended with ${status}:\n${answers}")
  endif()
  expect_block(README.md text "${answers}" "the answers to examples/first_steps.jsonl")
endif()

# Pictures and pages that are linked are there. A list must not hold brackets, so they go first.
file(GLOB documents RELATIVE "${SOURCE}" "${SOURCE}/*.md" "${SOURCE}/docs/*.md")
foreach(document IN LISTS documents)
  file(READ "${SOURCE}/${document}" content)
  get_filename_component(folder "${SOURCE}/${document}" DIRECTORY)
  string(REPLACE "](" "@link@" content "${content}")
  string(REGEX REPLACE "[][;]" " " content "${content}")
  string(REGEX MATCHALL "@link@[^)#:]+" links "${content}")
  foreach(link IN LISTS links)
    string(REPLACE "@link@" "" path "${link}")
    if(NOT EXISTS "${folder}/${path}")
      message(SEND_ERROR "${document} links to ${path}, which is not there")
    endif()
  endforeach()
endforeach()
