# The build hardened as Debian hardens its packages (dpkg-buildflags with
# hardening=+all): stack protector, format checks, fortified functions where
# the optimizer runs, read-only relocations bound at start.
add_compile_options(-fstack-protector-strong -Wformat -Werror=format-security
  $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
add_link_options(-Wl,-z,relro -Wl,-z,now)
