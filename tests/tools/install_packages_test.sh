#!/bin/bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tools/install-packages against a package list and an apt-get of its own: nothing is installed.
set -euo pipefail

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/tools" "$work/packaging" "$work/bin"
cp "$1/tools/install-packages" "$work/tools/"
cat >"$work/packaging/packages.txt" <<'END'
# Not a package: comment
[build]
here
absent

[test]
absent-too
here

[full]
here

[brought]
brought
END

# The machine has "here" alone. "removed" packages are known to dpkg, but not installed.
cat >"$work/bin/dpkg-query" <<'END'
#!/bin/bash
case ${!#} in
  *Provides*) printf 'installed other, brought\nconfig-files absent\n' ;;
  here) echo installed ;;
  absent-too) echo config-files ;;
  *) exit 1 ;;
esac
END
cat >"$work/bin/apt-get" <<END
#!/bin/bash
echo "\$*" >>"$work/calls"
echo "what apt-get says"
[[ ! -e $work/broken ]]
END
printf '#!/bin/bash\nexec "$@"\n' >"$work/bin/sudo"
chmod +x "$work"/bin/*
export PATH=$work/bin:$PATH

fail() { echo "FAILED: $*" >&2; exit 1; }

try() {
  rm -f "$work/calls"
  status=0
  said=$("$work/tools/install-packages" "$@" 2>&1) || status=$?
  calls=$(sed 's/-o [^ ]*//g; s/-qq//; s/^ *//; s/  */ /g' "$work/calls" 2>/dev/null) || calls=
}

try full
[[ $status == 0 && -z $said && -z $calls ]] || fail "nothing missing: $status '$said' '$calls'"

try brought
[[ $status == 0 && -z $said && -z $calls ]] || fail "brought along by another: $status '$said' '$calls'"

try build
[[ $status == 0 && $said == "Installing absent ..." ]] || fail "one missing: $status '$said'"
[[ $calls == $'update\ninstall -y --no-install-recommends absent' ]] || fail "one missing: '$calls'"

try build test
[[ $calls == $'update\ninstall -y --no-install-recommends absent absent-too' ]] ||
  fail "two sections: '$calls'"

try nosuch
[[ $status == 1 && -z $calls ]] || fail "unknown section: $status '$calls'"
[[ $said == "tools/install-packages: packaging/packages.txt has no section [nosuch]" ]] ||
  fail "unknown section: '$said'"

touch "$work/broken"
try build
[[ $status == 1 ]] || fail "apt-get fails: $status"
[[ $said == $'Installing absent ...\nwhat apt-get says\ntools/install-packages: apt-get could not install: absent' ]] ||
  fail "apt-get fails: '$said'"
