#!/bin/sh
# Fetches the Firebird server's package and unpacks it, without installing or starting anything, for
# the tests that need a server. Usage: baixar-firebird.sh FOLDER
# The program is then FOLDER/usr/sbin/firebird; build/firebird-server is where the tests look.
set -eu
pasta=$1
[ -x "$pasta/usr/sbin/firebird" ] && exit 0
mkdir -p "$pasta"
trabalho=$(mktemp -d)
chmod 777 "$trabalho"
trap 'rm -rf "$trabalho"' EXIT
( cd "$trabalho" && apt-get -qq download firebird3.0-server )
dpkg -x "$trabalho"/firebird3.0-server_*.deb "$pasta"
[ -x "$pasta/usr/sbin/firebird" ]
