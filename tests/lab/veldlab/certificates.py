"""A certificate authority of the lab's own and the certificates it issues, by openssl(1) inside the lab.

    ca.pem, ca.key          trusted by the host
    NAME.pem                certificate and key in one file
    foreign-ca.pem          an authority that no program trusts, for the "untrusted" certificate

All are in one folder. A file is renamed into place, so a server never reads half of it.
"""

import subprocess

# $1 folder, then one line per certificate on standard input: FILE AUTHORITY DAYS NAME[,NAME...]; DAYS may be negative.
_SCRIPT = r"""
set -eu; umask 077; cd "$1"
authority() {
    [ -e "$1.pem" ] && return
    openssl ecparam -genkey -name prime256v1 -noout -out "$1.key"
    openssl req -x509 -new -key "$1.key" -sha256 -days 30 -subj "/CN=$2" -out "$1.new" \
        -addext basicConstraints=critical,CA:TRUE -addext keyUsage=critical,keyCertSign,cRLSign
    chmod 644 "$1.new"; mv "$1.new" "$1.pem"
}
authority ca "Veldmark Lab CA"
authority foreign-ca "Foreign Lab CA"
issue() {
    file=$1 ca=$2 start=$3 end=$4 names=$5
    openssl ecparam -genkey -name prime256v1 -noout -out "$file.key"
    openssl req -new -key "$file.key" -subj "/CN=${names%%,*}" -out "$file.csr"
    work=.ca-$file; rm -rf "$work"; mkdir "$work"; : > "$work/index"; openssl rand -hex 16 > "$work/serial"
    cat > "$work/conf" <<END
[ca]
default_ca=lab
[lab]
dir=$work
database=$work/index
serial=$work/serial
new_certs_dir=$work
default_md=sha256
policy=any
x509_extensions=leaf
unique_subject=no
[any]
commonName=supplied
[leaf]
basicConstraints=critical,CA:FALSE
extendedKeyUsage=serverAuth
subjectAltName=DNS:$(printf %s "$names" | sed 's/,/,DNS:/g')
END
    openssl ca -batch -notext -config "$work/conf" -cert "$ca.pem" -keyfile "$ca.key" \
        -startdate "$start" -enddate "$end" -in "$file.csr" -out "$file.crt"
    cat "$file.crt" "$file.key" > "$file.new"; mv "$file.new" "$file.pem"
    rm -rf "$work" "$file.csr" "$file.crt" "$file.key"
}
while read -r file ca days names; do
    if [ "$days" -gt 0 ]; then start="-2 days" end="+$days days"; else start="$((days - 1)) days" end="$days days"; fi
    issue "$file" "$ca" "$(date -u -d "$start" +%Y%m%d%H%M%SZ)" "$(date -u -d "$end" +%Y%m%d%H%M%SZ)" "$names" &
    pids="${pids-} $!"
done
for pid in ${pids-}; do wait "$pid"; done
"""


def issue(world, folder: str, requests: list[tuple[str, str, int, list[str]]]) -> None:
    """Issues each (file, authority, days, names); makes the two authorities first if need be. Raises CommandFailed."""
    lines = "".join(f"{file} {ca} {days} {','.join(names)}\n" for file, ca, days, names in requests)
    world.run(["/bin/sh", "-c", _SCRIPT, "sh", folder], input=lines, check=True)


def subject_hash(pem_path: str) -> str:
    """The name under which OpenSSL looks an authority up in a certificate folder, without the ".0"."""
    result = subprocess.run(
        ["openssl", "x509", "-noout", "-subject_hash", "-in", pem_path], check=True, capture_output=True, text=True
    )
    return result.stdout.strip()
