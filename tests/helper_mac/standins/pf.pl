# pf's stand-in, a part of server.pl.
use strict;
use warnings;
our ($name, $caller, $input, %state);

sub quit_pf { print STDERR "$_[0]\npfctl: Syntax error in config file: pf rules not loaded\n"; finish(1) }

my $ADDRESS = qr/(?:<\w+>|[0-9a-fA-F.:]+(?:\/\d+)?)/;
my $PORT = qr/(?:port = [\w-]+)/;
my $RULE = qr{^(?:pass|block\ return|block\ drop)(?:\ in|\ out)?\ quick(?:\ on\ lo0)?(?:\ inet6?)?(?:\ proto\ (?:tcp|udp|icmp6))?
    (?:\ all|\ from\ (?:any|$ADDRESS)(?:\ $PORT)?\ to\ (?:any|$ADDRESS)(?:\ $PORT)?)
    (?:\ user\ =\ \d+)?(?:\ group\ =\ \d+)?(?:\ flags\ S/SA)?(?:\ icmp6-type\ \w+)?(?:\ keep\ state|\ no\ state)?$}x;

# pfctl prints the first name of a number: of ports in services(5), of messages in a table of its own (pfctl_parser.c).
my %PORTS = (53 => 'domain', 67 => 'bootps', 68 => 'bootpc', 137 => 'netbios-ns', 138 => 'netbios-dgm', 139 => 'netbios-ssn',
    546 => 'dhcpv6-client', 547 => 'dhcpv6-server', 5353 => 'mdns');
my %MESSAGES = (listqry => 'groupqry', listenrep => 'grouprep');

# A rule as pfctl prints it: lists written out, "=" before single numbers, and what pf.conf(5) says is meant where it is left out.
sub expand {
    my ($line) = @_;
    if ($line =~ /^(.*?)\{ ([^{}]*) \}(.*)$/) {
        my ($before, $list, $after) = ($1, $2, $3);
        return map { expand("$before$_$after") } split /, /, $list;
    }
    $line =~ s/\b(port|user|group) (\d+)/$1 = $2/g;
    $line =~ s/\bport = (\d+)\b/'port = ' . ($PORTS{$1} \/\/ $1)/ge;
    $line =~ s/\bicmp6-type (\w+)/'icmp6-type ' . ($MESSAGES{$1} \/\/ $1)/ge;
    $line =~ s/ from any to any(?= icmp6-type|$)/ all/;
    $line =~ s/ keep state$/ flags S\/SA keep state/ if $line =~ /^pass/ && $line !~ / flags / && $line !~ / proto (?!tcp)/;
    return $line;
}

sub read_rules {
    my ($text, $anchor) = @_;
    my (@filter, @nat, @dummynet);
    my $number = 0;
    for (split /\n/, $text) {
        $number++;
        next if /^\s*(#.*)?$/;
        if (/^rdr pass on lo0 inet proto udp from any to 127\.0\.0\.1 port (?:= )?(?:\d+|domain) -> 127\.0\.0\.1 port \d+$/) {
            push @nat, s/ port (\d+) ->/' port = ' . ($PORTS{$1} \/\/ $1) . ' ->'/er;
        }
        elsif (/^(?:nat|rdr)-anchor "[^"]+"(?: all)?$/) { push @nat, s/( all)?$/ all/r }
        elsif (/^scrub-anchor "[^"]+"(?: all fragment reassemble)?$/) {
            quit_pf("stdin:$number: Rules must be in order: options, normalization, queueing, translation, filtering") if @filter && $filter[-1] !~ /^scrub/;
            push @filter, s/( all fragment reassemble)?$/ all fragment reassemble/r;
        }
        elsif (/^dummynet-anchor "[^"]+"(?: all)?$/) {
            quit_pf("stdin:$number: Rules must be in order: options, normalization, queueing, translation, filtering") if @filter && $filter[-1] !~ /^scrub/;
            push @dummynet, s/( all)?$/ all/r;
        }
        elsif (/^anchor "[^"]+"(?: all)?$/) { push @filter, s/( all)?$/ all/r }
        else {
            for (expand($_)) { quit_pf("stdin:$number: syntax error ($_)") unless $_ =~ $RULE; push @filter, $_ }
        }
    }
    my %seen;   # the optimiser leaves out a rule that stands there already
    return (join("\n", grep { !$seen{$_}++ } @filter), join("\n", @nat), join("\n", @dummynet));
}

sub pfctl {
    my @words = @_;
    my ($anchor, $file, $only, $show, $flush, $give_back, $enable, $dry, $verbose) = ('', undef, '', '', '', '', '', '', '');
    while (defined(my $word = shift @words)) {
        if ($word eq '-q') { }
        elsif ($word eq '-v') { $verbose = 1 }
        elsif ($word eq '-a') { $anchor = shift @words }
        elsif ($word eq '-n') { $dry = 1 }
        elsif ($word eq '-f') { $file = shift @words }
        elsif ($word eq '-N' || $word eq '-R') { $only = $word }
        elsif ($word eq '-s') { $show = shift @words }
        elsif ($word eq '-F') { $flush = shift @words }
        elsif ($word eq '-E') { $enable = 1 }
        elsif ($word eq '-X') { $give_back = shift @words }
        else { refuse(@_) }
    }
    print STDERR "No ALTQ support in kernel\nALTQ related functions disabled\n";
    if (defined $file) {
        my $text = $file eq '-' ? $input : do { local (@ARGV, $/) = $file; <> };
        my ($filter, $nat, $dummynet) = read_rules($text // '', $anchor);
        return if $dry;
        # Filter rules and dummynet's rules are removed together.
        $state{"pf $anchor dummynet"} = $dummynet unless $anchor || $only eq '-N';
        $state{"pf $anchor filter"} = $filter unless $only eq '-N';
        $state{"pf $anchor nat"} = $nat unless $only eq '-R';
        delete @state{"pf $anchor filter", "pf $anchor nat"} if $anchor && !length "$filter$nat";
    }
    # A table that nothing names any more goes, unless it was made to stay ("persist").
    my $named = join "\n", map { $state{$_} } grep { /^pf .*filter$/ } keys %state;
    for my $table (grep { /^pf table / } keys %state) { delete $state{$table} if $named !~ /<\Q@{[substr $table, 9]}\E>/ && $state{$table} !~ /persist/ }
    # A pf that holds other rules than it was given.
    $state{'pf veldmark filter'} = 'pass out quick all' if $state{'pf lies'} && defined $state{'pf veldmark filter'};
    if ($show eq 'rules') { print map { "$_\n" } split /\n/, $state{"pf $anchor filter"} // '' }
    elsif ($show eq 'nat') { print map { "$_\n" } split /\n/, $state{"pf $anchor nat"} // '' }
    elsif ($show eq 'dummynet') { print map { "$_\n" } split /\n/, $state{"pf $anchor dummynet"} // '' }
    elsif ($show eq 'Tables') { print map { /^pf table (.*)/ ? "$1\n" : () } sort keys %state }
    elsif ($show eq 'Interfaces') {
        print map { my $device = $_; $device . ($verbose && grep({ $_ eq $device } split / /, $state{'pf skip'} // '') ? ' (skip)' : '') . "\n" } qw(ALL en0 lo lo0 utun0);
    }
    elsif ($show eq 'info') {
        print "Status: ", ($state{'pf enabled'} ? 'Enabled' : 'Disabled'), " for 0 days 00:01:00           Debug: Urgent\n\nState Table\n";
    } elsif ($show eq 'References') {
        print "TOKENS:\nPID      Process Name                 TOKEN                    TIMESTAMP           \n",
              map { my ($pid, $process, $token) = split / /; sprintf " %-7s %-28s %-24s 0 days 00:00:01\n", $pid, $process, $token }
              split /\n/, $state{'pf tokens'} // '';
    } elsif ($show) { refuse(@_) }
    if ($flush eq 'rules') { $state{"pf $anchor filter"} = '' }
    elsif ($flush eq 'states') { $state{'pf flushes'}++; delete $state{'pf states'} } elsif ($flush) { refuse(@_) }
    if ($enable) {
        my $token = 18446743524953000000 + ++$state{'pf last token'};
        $state{'pf tokens'} = join "\n", (split /\n/, $state{'pf tokens'} // ''), "$caller pfctl $token";
        $state{'pf enabled'} = 1;
        print STDERR "pf enabled\nToken : $token\n";
    }
    if ($give_back) {
        my @tokens = split /\n/, $state{'pf tokens'} // '';
        my @left = grep { !/ \Q$give_back\E$/ } @tokens;
        if (@left == @tokens) { print STDERR "pfctl: DIOCSTOPREF: Invalid argument\n"; finish(1) }
        $state{'pf tokens'} = join "\n", @left;
        $state{'pf enabled'} = 0 unless @left || $state{'pf plainly enabled'};
    }
}

1;
