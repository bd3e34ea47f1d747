#!/bin/sh
# Fails when a parameterised case has neither a name nor a readable parameter: listed by its
# index, with its parameter shown as raw bytes.
status=0
for program in "$@"; do
    if "$program" --gtest_list_tests | grep -qE '/[0-9]+ +# GetParam\(\) = [0-9]+-byte object <'; then
        echo "$program lists a parameter as raw bytes"
        status=1
    fi
done
exit $status
