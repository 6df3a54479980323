#!/usr/bin/env bash
# Seeds a demo installation: a bin directory and a settings file that points at it.
# Usage: seed.sh <directory> <path of the qd7gd tool>
set -euo pipefail
dir=$1
tool=$2
mkdir -p "$dir/bin"
export QD7_REGISTRY=$dir/registry.ini
"$tool" set BinDir "$dir/bin"
echo "demo installation in $dir"
