#!/bin/sh
# run-vm.sh FOLDER PROGRAM [FILE...]
#
# Runs a GoogleTest program on a Debian kernel of its own under QEMU, where it may plug HID devices
# in and out without touching the machine that it is tested on. FOLDER keeps the kernel between
# runs. PROGRAM and each FILE stand in the guest's root folder under their own names, with the
# shared libraries that they need. Every test runs in a process of its own.
#
# Exit code 0 when all tests passed, 77 with the reason when the machine cannot run a guest.
set -eu

TIME_LIMIT=240 # seconds for the whole guest; a good run takes a small part of it
MEMORY=512     # MiB; a program of a sanitizer build has room in it too
MODULES='hid hid-generic uhid' # in the order of their needs
KERNEL=linux-image-cloud-amd64 # boots in half the time of the general kernel and has the modules

folder=$1
program=$2
kernel=$folder/kernel
root=$folder/root

skip() {
  echo "skipped: $1"
  exit 77
}

check_machine() {
  [ "$(dpkg --print-architecture 2>/dev/null)" = amd64 ] || skip 'needs Debian on amd64'
  for tool in qemu-system-x86_64 busybox cpio flock timeout apt-get; do
    command -v $tool >/dev/null || skip "needs $tool"
  done
}

# The kernel's package is unpacked, not installed: nothing of it concerns this machine.
fetch_kernel() {
  [ ! -e "$kernel/complete" ] || return 0
  rm -rf "$kernel"
  mkdir -p "$kernel"
  package=$(apt-cache depends $KERNEL 2>/dev/null |
    sed -n 's/^ *Depends: \(linux-image-[0-9].*\)/\1/p')
  [ -n "$package" ] || skip "apt does not know $KERNEL; apt-get update may help"
  (cd "$kernel" && apt-get -qq -o APT::Sandbox::User=root download "$package") ||
    skip "$package could not be downloaded; apt-get update may help"
  dpkg-deb --fsys-tarfile "$kernel"/*.deb |
    tar -x -C "$kernel" --wildcards './boot/vmlinuz-*' '*/drivers/hid/*.ko'
  rm "$kernel"/*.deb
  touch "$kernel/complete"
}

# Copies a file to its own path in the guest.
copy() {
  mkdir -p "$root/$(dirname "$1")"
  cp -L "$1" "$root/$1"
}

copy_program() {
  cp -L "$1" "$root/"
  # A static program has no libraries, which ldd takes for an error.
  for library in $(ldd "$1" 2>/dev/null | grep -o '/[^ ]*'); do copy "$library"; done
}

build_root() {
  rm -rf "$root"
  mkdir -p "$root/bin" "$root/dev" "$root/proc" "$root/sys" "$root/tmp" "$root/modules"
  for file in "$(command -v busybox)" "$@"; do copy_program "$file"; done
  mv "$root/busybox" "$root/bin/"
  for module in $MODULES; do
    find "$kernel/lib" -name "$module.ko" -exec cp {} "$root/modules/" \;
  done
  write_init >"$root/init"
  chmod +x "$root/init"
  # Not packed: the guest would take longer to unpack it than to be handed all of it.
  (cd "$root" && find . | cpio --quiet -o -H newc) >"$folder/initramfs"
}

# The guest's first and only program of its own.
write_init() {
  cat <<EOF
#!/bin/busybox sh
/bin/busybox --install -s /bin
export PATH=/bin
mount -t devtmpfs devices /dev
mount -t proc processes /proc
mount -t sysfs system /sys
ip link set lo up
for module in $MODULES; do insmod /modules/\$module.ko; done
program=/$(basename "$program")
EOF
  cat <<'EOF'
cd /tmp
status=1
tests=$($program --gtest_list_tests | awk '/^[^ ]/ { suite = $1 } /^ / { print suite $1 }')
[ -z "$tests" ] || status=0
for name in $tests; do
  if timeout 60 $program --gtest_brief=1 --gtest_filter="$name" >/log 2>&1; then
    echo "passed $name"
  else
    echo "FAILED $name, exit code $?"
    cat /log
    status=1
  fi
done
echo "guest up for $(cut -d ' ' -f 1 /proc/uptime) s"
echo "guest status $status"
reboot -f
EOF
}

run_guest() {
  timeout $TIME_LIMIT qemu-system-x86_64 -accel tcg -cpu qemu64,+rdrand -m $MEMORY \
    -nodefaults -display none -serial stdio -no-reboot \
    -kernel "$(echo "$kernel"/boot/vmlinuz-*)" -initrd "$folder/initramfs" \
    -append 'console=ttyS0 quiet panic=-1' </dev/null >"$folder/console" 2>&1 ||
    echo "the guest did not come to its end within $TIME_LIMIT s"
  tr -d '\r' <"$folder/console"
}

check_machine
mkdir -p "$folder"
exec 9>"$folder/lock" # one guest at a time: they share the folder
flock 9
fetch_kernel
shift
build_root "$@"
run_guest
grep -q '^guest status 0' "$folder/console"
