# Checks that a page contains the examples word for word: for each language, a fenced block must be the
# example without its first comment.
#   cmake -DROOT=... -DDOCUMENT=... -P shown_examples.cmake
cmake_minimum_required(VERSION 3.25)

#   language, example, its first word after the comment
set(rows
    "c examples/append_message.c #include"
    "cpp examples/list_signals.cpp #include"
    "python examples/python/list_signals.py import"
    "csharp examples/csharp/ListSignals.cs using")

file(READ "${ROOT}/${DOCUMENT}" document)
foreach(row IN LISTS rows)
    separate_arguments(row)
    list(POP_FRONT row language example beginning)
    file(READ "${ROOT}/${example}" text)
    string(FIND "${text}" "${beginning}" start)
    string(SUBSTRING "${text}" ${start} -1 text)
    string(FIND "${document}" "\n```${language}\n${text}```\n" place)
    if(place EQUAL -1)
        message(FATAL_ERROR "${DOCUMENT} does not show ${example}:\n${text}")
    endif()
endforeach()
