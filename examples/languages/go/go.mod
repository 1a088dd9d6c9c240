module sign

go 1.19
