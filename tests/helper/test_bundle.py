"""A transport runs without an approval only when root has verified the Tor Project's signature of the archive that contains it."""

import namespace
from bundlecase import ARCHIVE, LYREBIRD, MEMBER, NEW_BUNDLE, NOTE, PROGRAMS, PROMPT, BundleCase
from bundles import FEBRUARY, Signer, bundle, member, packets, transport
from namespace import TOR


class Signed(BundleCase):
    def test_what_is_signed_runs_without_a_password(self):
        self.bring(transport("one"))
        self.assertAsked(self.connect(more=(), check=False))
        self.connect()
        path = f"{PROGRAMS}/{self.digest()}/lyrebird"
        self.assertIn(f"\nClientTransportPlugin obfs4 exec {path}\n", self.machine.shell("cat /var/lib/veldmark/run/torrc"))
        self.assertEqual(self.machine.shell("stat -c '%a %u %g' " + path), "755 0 0\n")
        self.assertEqual(self.machine.shell("cat " + path), transport("one").decode())
        self.assertEqual(self.note(), ["signed 1767225600", f"program {self.digest()}/lyrebird", "end"])
        self.assertEqual(self.machine.shell(f"stat -c '%a %u' {NOTE}"), "600 0\n")
        self.assertEqual(self.machine.shell(f"ls -d {NEW_BUNDLE} {PROGRAMS}/new 2>/dev/null || true"), "")
        self.machine.help("disconnect")
        self.connect(more=())  # the copy exists

    def test_names_with_a_dot_before_them(self):
        program = transport("dot")
        self.bring(program, bundle(member("./" + MEMBER, program)))
        self.connect()

    def test_only_what_is_in_the_archive(self):
        self.bring(transport("evil"), bundle(member(MEMBER, transport("good"))))
        self.assertAsked(self.connect(check=False))
        self.assertEqual(self.copies(), [])

    def test_only_a_transport_in_its_own_role(self):
        program = transport("one")
        self.bring(program, bundle(member(MEMBER, program), member("tor/tor", program)))
        words = [TOR if word == LYREBIRD else LYREBIRD if word == TOR else word for word in self.WORDS]
        self.assertOneLine(self.machine.help_by_rule(*words, "--bundle", ARCHIVE, check=False), "password")
        self.assertEqual(self.copies(), [])
        self.connect()

    def test_only_what_the_signer_has_signed(self):
        program = transport("evil")
        archive = bundle(member(MEMBER, program))
        right, wrong = self.signer.sign(archive), self.other.sign(archive)
        key, others = self.signer.key, self.other.key
        # Another signer's subkey after this signer's key, with the binding that the other signer made.
        ours, theirs = packets(key), packets(others)
        at = [kind for kind, _ in theirs].index(14)
        foreign = b"".join(packet for _, packet in theirs[at:])
        ring = b"".join(packet for _, packet in ours)
        self.assertEqual(ring, key)
        with open(f"{self.other.home}/pubring.kbx", "rb") as file:
            keybox = file.read()
        for name, signature, ring in (
            ("another signer's", wrong, others),
            ("another signer's, the signer's key", wrong, key),
            ("another signer's, both keys", wrong, key + others),
            ("another signer's, both keys the other way", wrong, others + key),
            ("the signer's, both keys", right, key + others),
            ("a subkey of another signer's", wrong, key + foreign),
            ("the same, not bound", wrong, key + theirs[at][1]),
            ("the same, with the signer's binding", wrong, key + theirs[at][1] + ours[-1][1]),
            ("another form of keyring", wrong, keybox),
            ("of something else", self.signer.sign(b"something else"), key),
            ("signed text", self.signer.sign(b"text", how="--sign"), key),
            ("clear-signed text", self.signer.sign(b"text", how="--clearsign"), key),
            ("no signature", None, key),
            ("an empty one", b"", key),
            ("no key", right, None),
            ("an empty key", right, b""),
            ("a key that was cut", right, key[:-1]),
            ("a key in letters", right, self.signer.gpg("--armor", "--export")),
            ("status lines", f"[GNUPG:] VALIDSIG {self.signer.fingerprint}\n".encode(), key),
            ("a signature too large", right + b"\n" * 300_000, key),
        ):
            with self.subTest(name):
                self.bring(program, archive, signature=signature, key=ring)
                self.assertAsked(self.connect(check=False))
                self.assertEqual(self.copies(), [])
        self.bring(program, archive[:-1] + b"x", signature=right)
        self.assertAsked(self.connect(check=False))
        self.bring(program, archive, signature=right)
        self.connect()  # the positive case

    def test_a_key_of_the_real_ones_kind(self):
        """The real keys are RSA keys, whose packets have a length of two bytes."""
        signer = Signer("Long", "rsa4096")
        self.assertIn(0x99, {packet[0] for kind, packet in packets(signer.key) if kind == 6})
        program = transport("long")
        archive = bundle(member(MEMBER, program))
        self.bring(program, archive, signature=signer.sign(archive), key=signer.key)
        self.machine.run("/bin/bash", self.helper_of(signer), *self.WORDS, "--bundle", ARCHIVE, env=PROMPT)

    def test_a_revoked_key_signs_nothing(self):
        revoked = Signer("Revoked")
        program = transport("revoked")
        archive = bundle(member(MEMBER, program))
        path = self.helper_of(revoked)
        signature = revoked.sign(archive)
        for key, runs in (revoked.key, True), (revoked.revoke(), False):
            self.bring(program, archive, signature=signature, key=key)
            self.machine.shell(f"rm -rf {PROGRAMS} {NOTE}")
            done = self.machine.run("/bin/bash", path, *self.WORDS, "--bundle", ARCHIVE, env=PROMPT, check=False)
            self.assertEqual(done.returncode, 0 if runs else 4, done.stderr)
            self.machine.help("disconnect")

    def test_a_clock_that_is_wrong_lets_nothing_in(self):
        """To that clock the key was made in the future."""
        late = Signer("Late", made="20900101T000000")
        program = transport("late")
        archive = bundle(member(MEMBER, program))
        self.bring(program, archive, signature=late.sign(archive, "20900201T000000"), key=late.key)
        done = self.machine.run("/bin/bash", self.helper_of(late), *self.WORDS, "--bundle", ARCHIVE, env=PROMPT, check=False)
        self.assertEqual(done.returncode, 4, done.stderr)

    def test_what_was_signed_before_the_key_went_out_of_date_counts(self):
        """A bundle stays valid although subkeys change every two years."""
        former = Signer("Former")
        program = transport("former")
        archive = bundle(member(MEMBER, program))
        self.bring(program, archive, signature=former.sign(archive), key=former.expire())
        self.machine.run("/bin/bash", self.helper_of(former), *self.WORDS, "--bundle", ARCHIVE, env=PROMPT)

    def test_prompt_of_a_connect_is_enough_too(self):
        """The prompt of a connect names no program, and none is needed: the bundle is signed."""
        self.bring(transport("one"))
        self.machine.help(*self.WORDS, "--bundle", ARCHIVE, env=PROMPT)

    def test_without_gpgv_an_administrator_is_asked(self):
        self.bring(transport("one"))
        self.replace_gpgv("")
        self.assertAsked(self.connect(check=False))
        self.machine.approve(LYREBIRD, "lyrebird", env=PROMPT)
        self.connect()

    def test_missing_bundle_changes_nothing(self):
        self.bring(transport("one"))
        self.assertAsked(self.connect(more=("--bundle", "/nonexistent"), check=False))
        self.assertAsked(self.connect(more=("--bundle", "/home/alice/b"), check=False))
        self.machine.approve(LYREBIRD, "lyrebird", env=PROMPT)
        self.connect(more=("--bundle", "/nonexistent"))


class Rollback(BundleCase):
    def test_older_bundle_is_refused_and_its_copy_does_not_run_again(self):
        old, new = transport("old"), transport("new")
        self.bring(old)
        self.connect()
        former = self.digest()
        self.machine.help("disconnect")
        self.bring(new, now=FEBRUARY)
        self.connect()
        self.assertEqual(self.copies(), [f"./{self.digest()}/lyrebird"])
        self.assertEqual(self.note(), ["signed 1769904000", f"program {self.digest()}/lyrebird", "end"])
        self.machine.help("disconnect")
        self.bring(old)
        self.assertEqual(self.digest(), former)
        self.assertAsked(self.connect(check=False))
        self.bring(new, now=FEBRUARY)  # the same again
        self.connect()

    def test_former_copy_is_dropped_once_another_session_runs_and_never_runs_meanwhile(self):
        """A connect with a newer bundle fails late. The running session keeps its program's file."""
        old, new = transport("old"), transport("new")
        self.bring(old)
        self.connect()
        former = self.digest()
        self.bring(new, now=FEBRUARY)
        self.assertOneLine(self.connect(check=False), "change the running strict session")
        self.assertIn(f"former {former}/lyrebird", self.note())
        self.assertIn(f"./{former}/lyrebird", self.copies())
        self.machine.help("disconnect")
        self.bring(old)
        self.assertAsked(self.connect(check=False))
        self.assertAsked(self.connect(more=(), check=False))
        self.machine.connect()
        self.assertNotIn(f"./{former}/lyrebird", self.copies())

    def test_what_an_administrator_approved_stays(self):
        self.bring(transport("approved"))
        self.machine.approve(LYREBIRD, "lyrebird", env=PROMPT)
        approved = f"./{self.digest()}/lyrebird"
        self.bring(transport("signed"))
        self.connect()
        self.machine.approve(LYREBIRD, "lyrebird", env=PROMPT)  # approved in both ways
        both = f"./{self.digest()}/lyrebird"
        self.machine.help("disconnect")
        self.bring(transport("newer"), now=FEBRUARY)
        self.connect()
        self.assertLessEqual({approved, both}, set(self.copies()))

    def test_damaged_note_lets_no_bundle_in(self):
        self.bring(transport("one"))
        for text in "signed 1767225600", "", "end", "signed x\nend", "signed 99999999999999\nend":
            with self.subTest(text):
                self.machine.shell(f"mkdir -p -m 0755 /var/lib/veldmark; printf '%s\\n' \"$1\" >{NOTE}", text)
                self.assertAsked(self.connect(check=False))


if __name__ == "__main__":
    namespace.main()
