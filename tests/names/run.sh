#!/usr/bin/env bash
# run.sh REPO: every exported name stands in a test, and in the manual.
set -u
cd "$1" || exit 1
missing=$(sed 's/ = .*//' src/frame/names.txt | grep -vwFf <(grep -rhow 'vlqs[A-Za-z0-9_]*' tests --include='*_test.cpp' | sort -u))
if [ -z "$missing" ]; then echo "[ PASS ] every exported name is tested"; else
    echo "[ FAIL ] exported names without a test:" $missing
fi
missing=$(sed 's/ = .*//' src/frame/names.txt | grep -vwFf <(grep -rhow 'vlqs[A-Za-z0-9_]*' include | sort -u))
if [ -z "$missing" ]; then echo "[ PASS ] every exported name is declared"; else
    echo "[ FAIL ] exported names without a declaration:" $missing
fi
