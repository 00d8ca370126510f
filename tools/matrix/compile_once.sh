# shellcheck shell=bash
# Read by recipes that measure no time: what was compiled before, in any environment of this root, is not compiled
# again. What is not there yet is compiled at once, without being preprocessed for a look first.
. tools/dev/common.sh
need ccache
export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1 CCACHE_DEPEND=1
