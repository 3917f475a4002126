# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by construir: the libraries for Windows, from Debian's own sources, into $CACHE/raiz. A library that was built from
# the same version by the same lines of this file is taken as it is.

ARCHIVO_BIBLIOTECAS=${BASH_SOURCE[0]}
MAQUINA=x86_64-w64-mingw32
RAIZ=$CACHE/raiz
export RTN_WINDOWS_RAIZ=$RAIZ

# The sources' index is kept apart from the machine's own lists, which it leaves as they are.
fuentes_apt() {
  local f
  mkdir -p "$CACHE/apt/partes" "$CACHE/apt/listas/partial"
  for f in /etc/apt/sources.list /etc/apt/sources.list.d/debian.list; do
    [ ! -s "$f" ] || sed -nE 's/^deb(-src)? /deb-src /p' "$f" >"$CACHE/apt/partes/$(basename "$f" .list).list"
  done
  f=/etc/apt/sources.list.d/debian.sources
  [ ! -s "$f" ] || sed 's/^Types:.*/Types: deb-src/' "$f" >"$CACHE/apt/partes/debian.sources"
}
apt_fuentes() {
  local orden=$1
  shift
  "$orden" -o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts="$CACHE/apt/partes" \
    -o Dir::State::lists="$CACHE/apt/listas" -o APT::Sandbox::User= "$@"
}

# fuente PACKAGE: unpacks its newest version that the mirror still has; prints the folder.
fuente() {
  local paquete=$1 version carpeta
  carpeta=$CACHE/fuentes/$paquete
  if [ ! -e "$carpeta/.completa" ]; then
    [ -d "$CACHE/apt/partes" ] || { fuentes_apt && apt_fuentes apt-get update -qq >&2; }
    rm -rf "$carpeta" && mkdir -p "$carpeta" "$CACHE/descargas"
    for version in $(apt_fuentes apt-cache showsrc "$paquete" | sed -n 's/^Version: //p' | sort -Vru); do
      (cd "$CACHE/descargas" && apt_fuentes apt-get source -qq --download-only "$paquete=$version" >&2) || continue
      rmdir "$carpeta"
      (cd "$CACHE/descargas" && dpkg-source --no-check -x "${paquete}_${version#*:}.dsc" "$carpeta" >/dev/null)
      echo "$version" >"$carpeta/.completa"
      break
    done
    [ -e "$carpeta/.completa" ] || { echo "No se consigue la fuente de $paquete." >&2; return 1; }
  fi
  echo "$carpeta"
}

# biblioteca NAME: runs construir_NAME FOLDER in a folder of its own, with its output in a log.
biblioteca() {
  local nombre=$1 carpeta marca hecho resultado desde=$SECONDS
  carpeta=$(fuente "$2")
  marca=$(cat "$carpeta/.completa"; declare -f "construir_$nombre")
  hecho=$CACHE/hecho/$nombre
  [ "$(cat "$hecho" 2>/dev/null)" != "$marca" ] || return 0
  echo "Se construye $2 $(cat "$carpeta/.completa")…"
  mkdir -p "$CACHE/hecho" "$CACHE/b" "$CACHE/registros"
  rm -rf "$CACHE/b/$nombre" && mkdir "$CACHE/b/$nombre"
  # Not in the condition of an if, where no command would end it by its failure.
  set +e
  (set -e; cd "$CACHE/b/$nombre"; "construir_$nombre" "$carpeta") >"$CACHE/registros/$nombre" 2>&1
  resultado=$?
  set -e
  if [ $resultado -ne 0 ]; then
    tail -n 30 "$CACHE/registros/$nombre" >&2
    echo "Falló: $CACHE/registros/$nombre" >&2
    return 1
  fi
  echo "$marca" >"$hecho"
  echo "  $((SECONDS - desde)) s"
}

# con_cmake SOURCE OPTION...: configures, builds and installs in the current folder.
con_cmake() {
  local carpeta=$1
  shift
  cmake -S "$carpeta" -B . -G Ninja -DCMAKE_TOOLCHAIN_FILE="$AQUI/mingw.cmake" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_INSTALL_PREFIX="$RAIZ" -DBUILD_SHARED_LIBS=OFF "$@"
  cmake --build . ${DESTINO:+--target $DESTINO}
}

# What its programs read of the system at run time stands where administrators alone write: nobody else can put a
# configuration there.
construir_openssl() {
  "$1/Configure" mingw64 --cross-compile-prefix=$MAQUINA- --prefix=C:/Windows/System32/vedra-rtn \
    --openssldir=C:/Windows/System32/vedra-rtn no-shared no-tests no-module no-engine no-dso no-autoload-config \
    no-sock no-legacy -D_WIN32_WINNT=0x0A00
  make -s build_generated
  make -s -j "$(nproc)" libcrypto.a
  install -D -m 644 -t "$RAIZ/lib" libcrypto.a
  install -D -m 644 -t "$RAIZ/include/openssl" "$1"/include/openssl/*.h include/openssl/*.h
}

# The options of Debian's own, so that a store is read alike on both systems.
construir_sqlcipher() {
  local opciones=(-O2 -fno-strict-aliasing -DSQLITE_HAS_CODEC -DSQLITE_SECURE_DELETE -DSQLITE_ENABLE_COLUMN_METADATA
    -DSQLITE_ENABLE_FTS3 -DSQLITE_ENABLE_RTREE=1 -DSQLITE_SOUNDEX=1 -DSQLITE_ENABLE_UNLOCK_NOTIFY
    -DSQLITE_OMIT_LOOKASIDE=1 -DSQLITE_MAX_SCHEMA_RETRY=25 -DSQLITE_THREADSAFE=1 -DSQLITE_TEMP_STORE=2
    -DSQLITE_OMIT_LOAD_EXTENSION -D_WIN32_WINNT=0x0A00)
  "$1/configure" --disable-tcl --disable-readline CFLAGS="-O1 -DSQLITE_HAS_CODEC -DSQLITE_ENABLE_UPDATE_DELETE_LIMIT=1" \
    LIBS=-lcrypto
  make OPTS=-DSQLITE_ENABLE_UPDATE_DELETE_LIMIT=1 sqlite3.c
  $MAQUINA-gcc-posix "${opciones[@]}" -DSQLITE_ENABLE_UPDATE_DELETE_LIMIT=1 -I"$RAIZ/include" -c sqlite3.c -o sqlite3.o
  rm -f "$RAIZ/lib/libsqlcipher.a"
  mkdir -p "$RAIZ/lib/pkgconfig"
  $MAQUINA-ar rcs "$RAIZ/lib/libsqlcipher.a" sqlite3.o
  install -D -m 644 -t "$RAIZ/include/sqlcipher" sqlite3.h
  cat >"$RAIZ/lib/pkgconfig/sqlcipher.pc" <<FIN
Name: SQLCipher
Description: SQL database engine
Version: 3.4
Libs: -L$RAIZ/lib -lsqlcipher -lcrypto -lws2_32 -lcrypt32 -lbcrypt -ladvapi32 -luser32 -lgdi32
Cflags: -I$RAIZ/include/sqlcipher
FIN
}

construir_zint() {
  DESTINO=zint-static con_cmake "$1" -DZINT_STATIC=ON -DZINT_USE_QT=OFF -DZINT_USE_PNG=OFF
  install -D -m 644 "$(find . -name 'libzint*.a' ! -name '*.dll.a' | head -1)" "$RAIZ/lib/libzint.a"
  install -D -m 644 -t "$RAIZ/include" "$1/backend/zint.h"
}

construir_libzip() {
  con_cmake "$1" -DENABLE_COMMONCRYPTO=OFF -DENABLE_GNUTLS=OFF -DENABLE_MBEDTLS=OFF -DENABLE_OPENSSL=OFF \
    -DENABLE_WINDOWS_CRYPTO=OFF -DENABLE_BZIP2=OFF -DENABLE_LZMA=OFF -DENABLE_ZSTD=OFF -DBUILD_TOOLS=OFF \
    -DBUILD_REGRESS=OFF -DBUILD_EXAMPLES=OFF -DBUILD_DOC=OFF
  cmake --install .
  # In its own folder the import library of a DLL is found before it.
  install -m 644 -t "$RAIZ/lib" "/usr/$MAQUINA/lib/libz.a"
}

construir_googletest() {
  con_cmake "$1" -DBUILD_GMOCK=OFF
  cmake --install .
}

# Core, Gui, Widgets, PrintSupport and Test, the platforms of Windows and without a screen, the styles. Letters are drawn by
# FreeType as elsewhere: the printed forms break alike. Debian's source is without the header that drawing tablets need.
construir_qt() {
  con_cmake "$1" -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_TOOLS_BY_DEFAULT=OFF -DBUILD_WITH_PCH=ON \
    -DFEATURE_network=OFF -DFEATURE_sql=OFF -DFEATURE_concurrent=OFF -DFEATURE_dbus=OFF -DFEATURE_xml=OFF -DFEATURE_tabletevent=OFF \
    -DINPUT_opengl=no -DFEATURE_vulkan=OFF -DFEATURE_directwrite=OFF -DFEATURE_direct2d=OFF -DFEATURE_icu=OFF \
    -DFEATURE_glib=OFF -DFEATURE_zstd=OFF -DFEATURE_pkg_config=OFF -DFEATURE_system_zlib=ON \
    -DFEATURE_system_freetype=OFF -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_png=OFF -DFEATURE_system_jpeg=OFF \
    -DFEATURE_system_pcre2=OFF -DFEATURE_system_doubleconversion=OFF
  cmake --install .
}

construir_bibliotecas() {
  biblioteca openssl openssl
  biblioteca sqlcipher sqlcipher
  biblioteca zint zint
  biblioteca libzip libzip
  biblioteca googletest googletest
  biblioteca qt qt6-base
}
