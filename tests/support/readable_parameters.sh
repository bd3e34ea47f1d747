#!/bin/sh
# Fails when a parameterised case lists its parameter as raw bytes: every case needs a readable
# name, and every parameter a PrintTo that says what it is.
status=0
for program in "$@"; do
    if "$program" --gtest_list_tests | grep -q -- '-byte object <'; then
        echo "$program lists a parameter as raw bytes"
        status=1
    fi
done
exit $status
