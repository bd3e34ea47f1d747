#!/bin/sh
# Fails when a test program lists a parameterised case by the raw bytes of its parameter.
status=0
for program in "$@"; do
    if "$program" --gtest_list_tests | grep -q 'byte object <'; then
        echo "$program lists a parameter as raw bytes"
        status=1
    fi
done
exit $status
