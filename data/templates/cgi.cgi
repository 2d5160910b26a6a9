#!/usr/bin/perl
use strict;
use warnings;

# The fields of the query: "name=Ann&town=Old+Bath" gives name => 'Ann', town => 'Old Bath'.
sub fields {
    my ($query) = @_;
    my %field;
    for my $part (split /[&;]/, $query) {
        my ($name, $value) = map { tr/+/ /; s/%([0-9A-Fa-f]{2})/chr hex $1/ger } split(/=/, $part, 2);
        $field{$name} = $value // '' if defined $name;
    }
    return %field;
}

# Makes text safe to use in a page.
sub escape {
    my ($text) = @_;
    my %entity = ('&' => '&amp;', '<' => '&lt;', '>' => '&gt;', '"' => '&quot;');
    return $text =~ s/([&<>"])/$entity{$1}/gr;
}

my %field = fields($ENV{QUERY_STRING} // '');
my $name = escape($field{name} || 'World');

print "Content-Type: text/html; charset=utf-8\r\n\r\n";
print <<"PAGE";
<!DOCTYPE html>
<html lang="en">
<head>
  <meta charset="utf-8">
  <title>CGI Script</title>
</head>
<body>
  <h1>Hello, $name!</h1>
</body>
</html>
PAGE
