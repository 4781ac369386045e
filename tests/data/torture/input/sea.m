environment.wave = { type = custom
                     file = sea.txt }
